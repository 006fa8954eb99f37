#include "incidents/IncidentPills.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::incidents {

namespace {

using model::Incident;
using model::IncidentStatus;
using presentation::Pill;
using presentation::Tone;
using Pills = std::vector<Pill>;

Incident incidentOf(IncidentStatus status)
{
    Incident incident;
    incident.status = status;
    return incident;
}

struct HeaderRow {
    IncidentStatus status;
    Pill pill;
};

class HeaderOfAnIncident : public testing::TestWithParam<HeaderRow> {};

TEST_P(HeaderOfAnIncident, BeginsWithTheStatusAndItsSymbol)
{
    EXPECT_EQ(headerPills(incidentOf(GetParam().status)), Pills{GetParam().pill});
}

INSTANTIATE_TEST_SUITE_P(EachStatus, HeaderOfAnIncident,
    testing::Values(HeaderRow{IncidentStatus::active, {"Active", Tone::red, "exclamationmark.triangle.fill"}},
        HeaderRow{IncidentStatus::acknowledged, {"Acknowledged", Tone::orange, "eye.fill"}},
        HeaderRow{IncidentStatus::resolved, {"Resolved", Tone::green, "checkmark.seal.fill"}},
        HeaderRow{IncidentStatus::completed, {"Completed", Tone::green, "checkmark.seal.fill"}}));

TEST(HeaderPills, OfAnAcknowledgedButActiveIncidentAreTheRedOneAndTheGreenOne)
{
    auto incident = incidentOf(IncidentStatus::active);
    incident.acknowledged = true;
    EXPECT_EQ(headerPills(incident),
        (Pills{{"Active", Tone::red, "exclamationmark.triangle.fill"},
            {"Acknowledged", Tone::green, "checkmark.shield.fill"}}));
}

TEST(HeaderPills, OfAResolvedIncidentStillSayThatItWasAcknowledged)
{
    auto incident = incidentOf(IncidentStatus::resolved);
    incident.acknowledged = true;
    incident.severityName = "major";
    EXPECT_EQ(headerPills(incident),
        (Pills{{"Resolved", Tone::green, "checkmark.seal.fill"}, {"Major", Tone::orange},
            {"Acknowledged", Tone::green, "checkmark.shield.fill"}}));
}

TEST(SeverityPill, OfAnIncidentWithoutASeverityIsAbsent)
{
    EXPECT_EQ(severityPill(incidentOf(IncidentStatus::active)), std::nullopt);
}

TEST(SeverityPill, IsTheCapitalizedNameInItsColor)
{
    auto incident = incidentOf(IncidentStatus::active);
    incident.severityName = "CRITICAL";
    EXPECT_EQ(severityPill(incident), (Pill{"Critical", Tone::red}));
    incident.severityName = "very odd";
    EXPECT_EQ(severityPill(incident), (Pill{"Very Odd", Tone::gray}));
}

TEST(StatusPill, OfCompletedAndResolvedDifferInTheWordAlone)
{
    EXPECT_EQ(statusPill(incidentOf(IncidentStatus::resolved)), (Pill{"Resolved", Tone::green}));
    EXPECT_EQ(statusPill(incidentOf(IncidentStatus::completed)), (Pill{"Completed", Tone::green}));
}

}  // namespace

}  // namespace larkspan::incidents
