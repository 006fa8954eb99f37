#include "monitors/MetricRow.h"

#include <gtest/gtest.h>

namespace larkspan::monitors {

namespace {

using presentation::Tone;
using Rows = std::vector<MetricRow>;

TEST(MetricRows, AreAllFiguresInTheOrderOfThePanel)
{
    EXPECT_EQ(metricRows({.avgMs = 311.6,
                  .uptimePercentage = 99.975,
                  .uptimeTrend = "stable",
                  .responseTimeTrend = "up",
                  .responseTimeChange = 4.26,
                  .state = "up",
                  .apdex = 0.9,
                  .apdexChange = 1}),
        (Rows{{"Avg Response", "312 ms", Tone::orange}, {"Uptime", "99.97%", Tone::green},
            {"RT Change", "+4.3%", Tone::red}, {"RT Trend", "Up", Tone::green},
            {"Uptime Trend", "Stable", Tone::blue}}));
}

TEST(MetricRows, AreLeftOutWhereTheWindowHasNoSuchFigure)
{
    EXPECT_EQ(metricRows({}), Rows{});
    EXPECT_EQ(metricRows({.uptimeTrend = "down"}), (Rows{{"Uptime Trend", "Down", Tone::red}}));
    EXPECT_EQ(metricRows({.responseTimeTrend = "down"}), (Rows{{"RT Trend", "Down", Tone::red}}));
}

TEST(MetricRows, AnAverageOfExactly300IsOrangeAndOfExactly600RedAnd2999IsGreen)
{
    const auto color = [](double average) { return metricRows({.avgMs = average}).front().valueColor; };
    EXPECT_EQ(color(299.9), Tone::green);
    EXPECT_EQ(color(300), Tone::orange);
    EXPECT_EQ(color(599.9), Tone::orange);
    EXPECT_EQ(color(600), Tone::red);
    EXPECT_EQ(color(-1), Tone::green);
}

TEST(MetricRows, AnUptimeOfExactly999IsGreenAndBelowOrange)
{
    const auto color = [](double uptime) { return metricRows({.uptimePercentage = uptime}).front().valueColor; };
    EXPECT_EQ(color(99.9), Tone::green);
    EXPECT_EQ(color(100), Tone::green);
    EXPECT_EQ(color(99.8999), Tone::orange);
}

TEST(MetricRows, AChangeOfExactlyZeroIsGreenAndCarriesAPlusSign)
{
    const auto row = [](double change) { return metricRows({.responseTimeChange = change}).front(); };
    EXPECT_EQ(row(0), (MetricRow{"RT Change", "+0.0%", Tone::green}));
    EXPECT_EQ(row(-3.25), (MetricRow{"RT Change", "-3.2%", Tone::green}));
    EXPECT_EQ(row(0.01), (MetricRow{"RT Change", "+0.0%", Tone::red}));
}

TEST(MetricRows, ATrendInCapitalsIsTreatedAsUpAndReadsUp)
{
    EXPECT_EQ(metricRows({.responseTimeTrend = "UP"}), (Rows{{"RT Trend", "Up", Tone::green}}));
}

TEST(MetricRows, OfExtremeFiguresAreWrittenInFull)
{
    EXPECT_EQ(metricRows({.avgMs = 1.7e308}).front().value.size(), 309u + 3u);
    EXPECT_EQ(metricRows({.uptimePercentage = -1.7e308}).front().value.size(), 1u + 309u + 4u);
}

}  // namespace

}  // namespace larkspan::monitors
