#include "monitors/LatencyDataPoint.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace larkspan::monitors {

namespace {

using namespace std::chrono_literals;
using model::MonitorMetricsWindow;
using testing::ElementsAre;

const std::vector<std::int64_t> latency{120, 80, -3};

TEST(PointsOfALatencyGraph, AreTheSamplesOfTheMetricsWithTheirTimesWhereThereAreAny)
{
    MonitorMetricsWindow window;
    window.latencyPoints = std::vector<model::LatencyPoint>{{7, support::Time{60s}}, {9, support::Time{0s}}};

    EXPECT_THAT(latencyDataPoints(latency, window),
        ElementsAre(LatencyDataPoint{0, 7, support::Time{60s}}, LatencyDataPoint{1, 9, support::Time{0s}}));
}

TEST(PointsOfALatencyGraph, AreNoneWhereTheSamplesOfTheMetricsAreNone)
{
    MonitorMetricsWindow window;
    window.latencyPoints.emplace();

    EXPECT_TRUE(latencyDataPoints(latency, window).empty());
}

TEST(PointsOfALatencyGraph, AreTheBareLatencyWithoutTimesElse)
{
    const std::vector<LatencyDataPoint> bare{{0, 120, std::nullopt}, {1, 80, std::nullopt}, {2, -3, std::nullopt}};

    EXPECT_EQ(latencyDataPoints(latency, MonitorMetricsWindow{}), bare);
    EXPECT_EQ(latencyDataPoints(latency, std::nullopt), bare);
}

}  // namespace

}  // namespace larkspan::monitors
