#include "incidents/IncidentColors.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::incidents {

namespace {

using model::IncidentStatus;
using presentation::Tone;

struct StatusRow {
    IncidentStatus status;
    Tone tone;
};

class ColorOfAStatus : public testing::TestWithParam<StatusRow> {};

TEST_P(ColorOfAStatus, SaysHowFarTheIncidentIs)
{
    EXPECT_EQ(incidentStatusColor(GetParam().status), GetParam().tone);
}

INSTANTIATE_TEST_SUITE_P(EachStatus, ColorOfAStatus,
    testing::Values(StatusRow{IncidentStatus::active, Tone::red}, StatusRow{IncidentStatus::acknowledged, Tone::orange},
        StatusRow{IncidentStatus::resolved, Tone::green}, StatusRow{IncidentStatus::completed, Tone::green}));

struct SeverityRow {
    std::string name;
    Tone tone;
};

class ColorOfASeverity : public testing::TestWithParam<SeverityRow> {};

TEST_P(ColorOfASeverity, IsThatOfItsNameInAnyCaseOfLetters)
{
    EXPECT_EQ(severityColor(GetParam().name), GetParam().tone);
}

INSTANTIATE_TEST_SUITE_P(EachName, ColorOfASeverity,
    testing::Values(SeverityRow{"critical", Tone::red}, SeverityRow{"major", Tone::orange},
        SeverityRow{"minor", Tone::yellow}, SeverityRow{"maintenance", Tone::blue}, SeverityRow{"CRITICAL", Tone::red},
        SeverityRow{"Major", Tone::orange}));

INSTANTIATE_TEST_SUITE_P(AnyOtherName, ColorOfASeverity,
    testing::Values(SeverityRow{"", Tone::gray}, SeverityRow{"trivial", Tone::gray}, SeverityRow{" minor", Tone::gray},
        SeverityRow{"minority", Tone::gray}, SeverityRow{"kritisch", Tone::gray}));

}  // namespace

}  // namespace larkspan::incidents
