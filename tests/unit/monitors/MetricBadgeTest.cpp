#include "monitors/MetricBadge.h"

#include <gtest/gtest.h>

namespace larkspan::monitors {

namespace {

using model::MonitorMetricsWindow;
using presentation::Tone;
using Badges = std::vector<MetricBadge>;

TEST(MetricBadges, AreAverageUptimeAndTrendInThatOrder)
{
    EXPECT_EQ(metricBadges({.avgMs = 181.5, .uptimePercentage = 99.94, .responseTimeTrend = "UP"}),
        (Badges{{"clock", "182ms", "Avg", Tone::blue}, {"arrow.up.arrow.down", "99.9%", "Uptime", Tone::green},
            {"arrow.up.right", "Up", "RT", Tone::green, true}}));
}

TEST(MetricBadges, AreLeftOutWhereTheWindowHasNoSuchFigure)
{
    EXPECT_EQ(metricBadges({}), Badges{});
    EXPECT_EQ(metricBadges({.avgMs = 0}), (Badges{{"clock", "0ms", "Avg", Tone::blue}}));
    EXPECT_EQ(metricBadges({.uptimePercentage = 0}), (Badges{{"arrow.up.arrow.down", "0.0%", "Uptime", Tone::orange}}));
    EXPECT_EQ(metricBadges({.uptimeTrend = "up", .responseTimeTrend = "down"}),
        (Badges{{"arrow.down.right", "Down", "RT", Tone::red, true}}));
}

TEST(MetricBadges, OfAnUptimeOfExactly999AreGreenAndBelowOrange)
{
    EXPECT_EQ(metricBadges({.uptimePercentage = 99.9}).front().color, Tone::green);
    EXPECT_EQ(metricBadges({.uptimePercentage = 99.89}).front().color, Tone::orange);
}

TEST(MetricBadges, AnyWordOtherThanUpOrDownInAnyCaseIsBlueWithAnArrowToTheRight)
{
    EXPECT_EQ((TrendBadge{"sideways", "RT"}.drawn()), (MetricBadge{"arrow.right", "Sideways", "RT", Tone::blue, true}));
    EXPECT_EQ((TrendBadge{"UPPER", "RT"}.drawn()), (MetricBadge{"arrow.right", "Upper", "RT", Tone::blue, true}));
}

}  // namespace

}  // namespace larkspan::monitors
