#include "monitors/MonitorColors.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::monitors {

namespace {

using model::MonitorStatus;
using presentation::Tone;

struct StatusRow {
    MonitorStatus status;
    std::string icon;
    Tone color;
};

class LookOfAMonitor : public testing::TestWithParam<StatusRow> {};

TEST_P(LookOfAMonitor, HasAnIconAndAColor)
{
    EXPECT_EQ(monitorStatusIcon(GetParam().status), GetParam().icon);
    EXPECT_EQ(monitorStatusColor(GetParam().status), GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(EachStatus, LookOfAMonitor,
    testing::Values(StatusRow{MonitorStatus::operational, "checkmark.circle.fill", Tone::green},
        StatusRow{MonitorStatus::degraded, "exclamationmark.triangle.fill", Tone::orange},
        StatusRow{MonitorStatus::down, "xmark.circle.fill", Tone::red},
        StatusRow{MonitorStatus::paused, "pause.circle.fill", Tone::secondary},
        StatusRow{MonitorStatus::unknown, "questionmark.circle", Tone::gray}));

struct TrendRow {
    std::string trend;
    Tone color;
    std::string icon;
};

class LookOfATrend : public testing::TestWithParam<TrendRow> {};

TEST_P(LookOfATrend, HasAColorAndAnIconByItsWordInAnyCaseOfLetters)
{
    EXPECT_EQ(trendColor(GetParam().trend), GetParam().color);
    EXPECT_EQ(trendIcon(GetParam().trend), GetParam().icon);
}

INSTANTIATE_TEST_SUITE_P(UpDownAndAnyOtherWord, LookOfATrend,
    testing::Values(TrendRow{"up", Tone::green, "arrow.up.right"}, TrendRow{"UP", Tone::green, "arrow.up.right"},
        TrendRow{"down", Tone::red, "arrow.down.right"}, TrendRow{"Down", Tone::red, "arrow.down.right"},
        TrendRow{"stable", Tone::blue, "arrow.right"}, TrendRow{"RISING", Tone::blue, "arrow.right"},
        TrendRow{"upward", Tone::blue, "arrow.right"}, TrendRow{"", Tone::blue, "arrow.right"}));

struct RegionStatusRow {
    std::string status;
    Tone color;
};

class StatusOfARegion : public testing::TestWithParam<RegionStatusRow> {};

TEST_P(StatusOfARegion, HasAColorByItsWordInAnyCaseOfLetters)
{
    EXPECT_EQ(regionStatusColor(GetParam().status), GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(EachWord, StatusOfARegion,
    testing::Values(RegionStatusRow{"up", Tone::green}, RegionStatusRow{"Up", Tone::green},
        RegionStatusRow{"down", Tone::red}, RegionStatusRow{"DOWN", Tone::red},
        RegionStatusRow{"degraded", Tone::orange}, RegionStatusRow{"Degraded", Tone::orange},
        RegionStatusRow{"paused", Tone::gray}, RegionStatusRow{"", Tone::gray}));

}  // namespace

}  // namespace larkspan::monitors
