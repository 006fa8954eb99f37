#include "monitors/SelectedLatency.h"

#include <gtest/gtest.h>

#include "fakes/FakeLocaleText.h"
#include "fakes/ManualClock.h"

namespace larkspan::monitors {

namespace {

class SelectedSample : public testing::Test {
protected:
    std::optional<SelectedLatency> selected(std::optional<int> index) const
    {
        return SelectedLatency::of(*curve, index, locale);
    }

    fakes::FakeLocaleText locale;
    std::shared_ptr<const LatencyCurve> curve
        = LatencyCurve::of({{0, 312, fakes::ManualClock().now()}, {1, -4, std::nullopt}});
};

TEST_F(SelectedSample, IsNoneWithoutASelection)
{
    EXPECT_EQ(selected(std::nullopt), std::nullopt);
}

TEST_F(SelectedSample, TellsItsValueAndItsTime)
{
    const auto sample = selected(0).value();
    EXPECT_EQ(sample.point, curve->points[0]);
    EXPECT_EQ(sample.callout, (LatencyCallout{.value = "312 ms", .time = "11-20 09:00"}));
    EXPECT_EQ(sample.callout.words(), "312 ms, 11-20 09:00");
}

TEST_F(SelectedSample, WithoutATimeTellsOneLine)
{
    const auto sample = selected(1).value();
    EXPECT_EQ(sample.callout, (LatencyCallout{.value = "-4 ms", .time = ""}));
    EXPECT_EQ(sample.callout.words(), "-4 ms");
}

TEST_F(SelectedSample, IsNoneBeyondTheSamples)
{
    EXPECT_EQ(selected(2), std::nullopt);
    EXPECT_EQ(selected(-1), std::nullopt);
}

}  // namespace

}  // namespace larkspan::monitors
