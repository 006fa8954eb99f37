#include "components/ComponentStatus.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::components {

namespace {

using presentation::Pill;
using presentation::Tone;

struct StatusRow {
    std::string status;
    std::string icon;
    Tone color;
};

class LookOfAStatus : public testing::TestWithParam<StatusRow> {};

TEST_P(LookOfAStatus, IsThatOfItsWordInAnyCaseOfLetters)
{
    EXPECT_EQ(componentStatusIcon(GetParam().status), GetParam().icon);
    EXPECT_EQ(componentStatusColor(GetParam().status), GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(EachWord, LookOfAStatus,
    testing::Values(StatusRow{"up", "checkmark.circle.fill", Tone::green},
        StatusRow{"operational", "checkmark.circle.fill", Tone::green},
        StatusRow{"degraded", "exclamationmark.triangle.fill", Tone::yellow},
        StatusRow{"degradedperformance", "exclamationmark.triangle.fill", Tone::yellow},
        StatusRow{"partialoutage", "exclamationmark.triangle.fill", Tone::orange},
        StatusRow{"down", "xmark.octagon.fill", Tone::red}, StatusRow{"majoroutage", "xmark.octagon.fill", Tone::red},
        StatusRow{"undermaintenance", "wrench.and.screwdriver.fill", Tone::blue}));

INSTANTIATE_TEST_SUITE_P(LettersOfAnyCase, LookOfAStatus,
    testing::Values(StatusRow{"UP", "checkmark.circle.fill", Tone::green},
        StatusRow{"degradedPerformance", "exclamationmark.triangle.fill", Tone::yellow},
        StatusRow{"PartialOutage", "exclamationmark.triangle.fill", Tone::orange},
        StatusRow{"MajorOutage", "xmark.octagon.fill", Tone::red},
        StatusRow{"UnderMaintenance", "wrench.and.screwdriver.fill", Tone::blue}));

class UnknownStatus : public testing::TestWithParam<std::string> {};

TEST_P(UnknownStatus, IsAGrayQuestionMark)
{
    EXPECT_EQ(componentStatusIcon(GetParam()), "questionmark.circle");
    EXPECT_EQ(componentStatusColor(GetParam()), Tone::gray);
}

INSTANTIATE_TEST_SUITE_P(OnlyUnderMaintenanceMeansMaintenance, UnknownStatus, testing::Values("maintenance"));

INSTANTIATE_TEST_SUITE_P(HyphensBlanksAndUnderscoresMakeAnotherWord, UnknownStatus,
    testing::Values("partial-outage", "partial_outage", "partial outage", " up", "up ", "under_maintenance"));

INSTANTIATE_TEST_SUITE_P(
    AnyOtherWord, UnknownStatus, testing::Values("unknown", "", "upp", "u", "Störung", "up\n", "🐦"));

TEST(PillOfAStatus, HasTheWordAsReceivedCapitalisedAndOtherwiseUnchanged)
{
    EXPECT_EQ(componentStatusPill("degradedperformance"), (Pill{"Degradedperformance", Tone::yellow}));
    EXPECT_EQ(componentStatusPill("UP"), (Pill{"Up", Tone::green}));
    EXPECT_EQ(componentStatusPill("partial-outage"), (Pill{"Partial-Outage", Tone::gray}));
}

}  // namespace

}  // namespace larkspan::components
