#include "monitors/RegionRow.h"

#include <gtest/gtest.h>

namespace larkspan::monitors {

namespace {

using model::RegionState;
using presentation::Tone;
using Rows = std::vector<RegionRow>;

TEST(RegionRows, StandInTheOrderOfTheWindow)
{
    const std::vector<RegionState> states{
        {.regionId = "us", .regionName = "Virginia", .status = "DOWN", .avgMs = 999.5},
        {.regionId = "eu", .regionName = "Frankfurt", .status = "up", .avgMs = 42.4},
        {.regionId = "ap", .regionName = "Tokyo", .status = "degraded", .avgMs = 0}};
    EXPECT_EQ(regionRows({.regionStates = states}),
        (Rows{{"Virginia", "1000ms", Tone::red, "Down"}, {"Frankfurt", "42ms", Tone::green, "Up"},
            {"Tokyo", "0ms", Tone::orange, "Degraded"}}));
}

TEST(RegionRows, ARegionWithoutANameShowsItsId)
{
    const std::vector<RegionState> states{{.regionId = "eu-central-1", .status = "odd", .avgMs = 1}};
    EXPECT_EQ(regionRows({.regionStates = states}), (Rows{{"eu-central-1", "1ms", Tone::gray, "Odd"}}));
}

TEST(RegionRows, ARegionWithoutAStateIsUnknown)
{
    const std::vector<RegionState> states{{.regionId = "eu", .avgMs = 1}};
    EXPECT_EQ(regionRows({.regionStates = states}), (Rows{{"eu", "1ms", Tone::gray, "Unknown"}}));
}

TEST(RegionRows, AreNoneWhereTheWindowHasNone)
{
    EXPECT_EQ(regionRows({}), Rows{});
    EXPECT_EQ(moreRegions({}), "");
    EXPECT_EQ(regionRows({.regionStates = std::vector<RegionState>{}}), Rows{});
}

TEST(RegionRows, OfManyAreTheFirstAndSayHowManyMoreThereAre)
{
    const model::MonitorMetricsWindow metrics{.regionStates = std::vector<RegionState>(20'000)};
    EXPECT_EQ(regionRows(metrics).size(), 100u);
    EXPECT_EQ(moreRegions(metrics), "and 19900 more");
}

}  // namespace

}  // namespace larkspan::monitors
