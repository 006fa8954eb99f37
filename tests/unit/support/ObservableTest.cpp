#include "support/Observable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace larkspan::support {

namespace {

struct Lamp : Observable {
    Published<int> brightness{*this, 1};
    Published<std::string> colour{*this};
};

TEST(Observable, TellsItsObserversBeforeTheValueLands)
{
    Lamp lamp;
    std::vector<int> seen;
    const auto subscription = lamp.objectWillChange([&] { seen.push_back(*lamp.brightness); });
    lamp.brightness = 2;
    lamp.brightness = 3;
    EXPECT_EQ(seen, (std::vector{1, 2}));
    EXPECT_EQ(*lamp.brightness, 3);
}

TEST(Observable, TellsOfAnEqualValueToo)
{
    Lamp lamp;
    int notices = 0;
    const auto subscription = lamp.objectWillChange([&] { ++notices; });
    lamp.brightness = 1;
    lamp.colour = "";
    EXPECT_EQ(notices, 2);
}

TEST(Observable, TellsObserversInTheOrderOfTheirSubscription)
{
    Lamp lamp;
    std::string order;
    const auto first = lamp.objectWillChange([&] { order += "1"; });
    const auto second = lamp.objectWillChange([&] { order += "2"; });
    lamp.brightness = 2;
    EXPECT_EQ(order, "12");
}

TEST(Observable, ADroppedSubscriptionHearsNothing)
{
    Lamp lamp;
    int notices = 0;
    auto subscription = lamp.objectWillChange([&] { ++notices; });
    subscription.reset();
    lamp.brightness = 2;
    EXPECT_EQ(notices, 0);
}

TEST(Observable, AnObserverMayUnsubscribeAnotherWithinANotice)
{
    Lamp lamp;
    int notices = 0;
    Subscription second;
    const auto first = lamp.objectWillChange([&] { second.reset(); });
    second = lamp.objectWillChange([&] { ++notices; });
    lamp.brightness = 2;
    EXPECT_EQ(notices, 0);
}

TEST(Observable, AnObserverMayUnsubscribeItselfWithinANotice)
{
    Lamp lamp;
    int notices = 0;
    Subscription only;
    only = lamp.objectWillChange([&] {
        ++notices;
        only.reset();
    });
    lamp.brightness = 2;
    lamp.brightness = 3;
    EXPECT_EQ(notices, 1);
}

TEST(Observable, OneSubscribedWithinANoticeHearsFromTheNextOne)
{
    Lamp lamp;
    int notices = 0;
    Subscription late;
    const auto first = lamp.objectWillChange([&] {
        if (!late) late = lamp.objectWillChange([&] { ++notices; });
    });
    lamp.brightness = 2;
    EXPECT_EQ(notices, 0);
    lamp.brightness = 3;
    EXPECT_EQ(notices, 1);
}

TEST(Observable, ASubscriptionMayOutliveWhatItObserves)
{
    Subscription subscription;
    {
        Lamp lamp;
        subscription = lamp.objectWillChange([] {});
    }
    subscription.reset();
    SUCCEED();
}

}  // namespace

}  // namespace larkspan::support
