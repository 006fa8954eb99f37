#include "presentation/time/LocalMoment.h"

#include <gtest/gtest.h>

#include "fakes/BerlinTime.h"

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;
using std::chrono::sys_days;

const auto spring = fakes::berlinInSpring();
const auto autumn = fakes::berlinInAutumn();
const support::Time utcSpring = sys_days{2026y / 3 / 29};
const support::Time utcAutumn = sys_days{2026y / 10 / 25};

LocalTime onSpringDay(std::chrono::minutes time)
{
    return LocalTime(local_days{2026y / 3 / 29} + time);
}

LocalTime onAutumnDay(std::chrono::minutes time)
{
    return LocalTime(local_days{2026y / 10 / 25} + time);
}

TEST(MomentOfAClock, IsTheOneAtWhichItShowsThatTimeOnBothSidesOfAChange)
{
    EXPECT_EQ(momentAt(spring, onSpringDay(1h + 59min), utcSpring), utcSpring + 59min);
    EXPECT_EQ(momentAt(spring, onSpringDay(3h), utcSpring), utcSpring + 1h);
    EXPECT_EQ(momentAt(spring, onSpringDay(-24h), utcSpring), utcSpring - 25h);
    EXPECT_EQ(momentAt(spring, onSpringDay(48h), utcSpring), utcSpring + 46h);
    EXPECT_EQ(momentAt(autumn, onAutumnDay(1h + 59min), utcAutumn), utcAutumn - 1min);
    EXPECT_EQ(momentAt(autumn, onAutumnDay(3h), utcAutumn), utcAutumn + 2h);
}

TEST(MomentOfAClock, ThatIsPutForwardOverATimeIsAsMuchLater)
{
    const auto moment = momentAt(spring, onSpringDay(2h + 30min), utcSpring);
    EXPECT_EQ(moment, utcSpring + 90min);
    EXPECT_EQ(spring.timeOnly(moment), "03:30");
}

TEST(MomentOfAClock, ThatShowsATimeTwiceIsTheEarlierOneUnlessTheLaterOffsetHoldsAlready)
{
    const auto twice = onAutumnDay(2h + 30min);
    EXPECT_EQ(momentAt(autumn, twice, utcAutumn - 24h), utcAutumn + 30min);
    EXPECT_EQ(momentAt(autumn, twice, utcAutumn + 45min), utcAutumn + 30min);
    EXPECT_EQ(momentAt(autumn, twice, utcAutumn + 75min), utcAutumn + 90min);
}

TEST(MomentOfAClock, InAZoneWithoutChangesIsOffByThatZone)
{
    fakes::FakeLocaleText locale;
    locale.offset = -(3h + 30min);
    EXPECT_EQ(momentAt(locale, onSpringDay(0h), utcSpring), utcSpring + 3h + 30min);
}

}  // namespace

}  // namespace larkspan::presentation
