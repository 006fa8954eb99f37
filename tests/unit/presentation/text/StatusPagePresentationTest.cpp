#include "presentation/text/StatusPagePresentation.h"

#include <gtest/gtest.h>

#include <string_view>

namespace larkspan::presentation {

namespace {

using model::StatusPageStatus;

struct PresentationRow {
    StatusPageStatus status;
    std::string_view label;
    std::string_view symbol;
    Tone tone;
};

class StatusPageTable : public testing::TestWithParam<PresentationRow> {};

TEST_P(StatusPageTable, GivesLabelSymbolAndTone)
{
    const auto shown = StatusPagePresentation::of(GetParam().status);
    EXPECT_EQ(shown.label, GetParam().label);
    EXPECT_EQ(shown.symbol, GetParam().symbol);
    EXPECT_EQ(shown.tone, GetParam().tone);
}

INSTANTIATE_TEST_SUITE_P(EachStatus, StatusPageTable,
    testing::Values(PresentationRow{StatusPageStatus::operational, "Operational", "checkmark.circle.fill", Tone::green},
        PresentationRow{StatusPageStatus::degraded, "Degraded", "exclamationmark.triangle.fill", Tone::yellow},
        PresentationRow{StatusPageStatus::down, "Down", "xmark.octagon.fill", Tone::red},
        PresentationRow{StatusPageStatus::maintenance, "Maintenance", "wrench.and.screwdriver", Tone::blue},
        PresentationRow{StatusPageStatus::unknown, "Unknown", "questionmark.circle", Tone::gray}));

}  // namespace

}  // namespace larkspan::presentation
