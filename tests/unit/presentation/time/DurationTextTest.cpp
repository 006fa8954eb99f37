#include "presentation/time/DurationText.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;

struct DurationRow {
    std::chrono::milliseconds elapsed;
    std::string text;
};

class DurationText : public testing::TestWithParam<DurationRow> {};

TEST_P(DurationText, IsInWholeHoursAndMinutes)
{
    const support::Time from{1'000'000'000s};
    EXPECT_EQ(durationText(from, from + GetParam().elapsed), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(EachForm, DurationText,
    testing::Values(DurationRow{0s, "< 1m"}, DurationRow{30s, "< 1m"}, DurationRow{59'999ms, "< 1m"},
        DurationRow{60s, "1m"}, DurationRow{119s, "1m"}, DurationRow{59min + 59s, "59m"}, DurationRow{1h, "1h"},
        DurationRow{90min, "1h 30m"}, DurationRow{2h, "2h"}, DurationRow{2h + 5min, "2h 5m"}, DurationRow{50h, "50h"},
        DurationRow{8'760h + 1min, "8760h 1m"}));

INSTANTIATE_TEST_SUITE_P(OfAnEndBeforeTheBeginning, DurationText,
    testing::Values(DurationRow{-59s, "< 1m"}, DurationRow{-1min, ""}, DurationRow{-1h, ""}, DurationRow{-90min, ""}));

}  // namespace

}  // namespace larkspan::presentation
