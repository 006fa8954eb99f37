#include "workspace/DashboardOperationalSummary.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/PolledAccount.h"

namespace larkspan::workspace {

namespace {

using core::OverallStatus;
using presentation::Tone;
using Summary = DashboardOperationalSummary;
using Details = std::vector<std::string>;

struct TitleRow {
    Summary summary;
    std::string title;
};

class OperationalTitle : public testing::TestWithParam<TitleRow> {};

TEST_P(OperationalTitle, IsTheFirstThatMatches)
{
    EXPECT_EQ(GetParam().summary.operationalTitle(), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(EachRow, OperationalTitle,
    testing::Values(TitleRow{{.overallStatus = OverallStatus::down, .isStale = true}, "Status may be stale"},
        TitleRow{{.overallStatus = OverallStatus::operational}, "All systems operational"},
        TitleRow{{.overallStatus = OverallStatus::degraded}, "An incident is being investigated"},
        TitleRow{{.overallStatus = OverallStatus::degraded, .affectedPageCount = 1}, "1 Status Page is degraded"},
        TitleRow{{.overallStatus = OverallStatus::degraded, .affectedPageCount = 2}, "2 Status Pages are degraded"},
        TitleRow{{.overallStatus = OverallStatus::down}, "An active incident requires attention"},
        TitleRow{{.overallStatus = OverallStatus::down, .affectedPageCount = 1}, "1 Status Page requires attention"},
        TitleRow{{.overallStatus = OverallStatus::down, .affectedPageCount = 12}, "12 Status Pages require attention"},
        TitleRow{{.overallStatus = OverallStatus::maintenance}, "Maintenance scheduled"},
        TitleRow{{.overallStatus = OverallStatus::maintenance, .activeMaintenanceCount = 1}, "Maintenance in progress"},
        TitleRow{{.overallStatus = OverallStatus::stale}, "Status may be stale"},
        TitleRow{{.overallStatus = OverallStatus::unknown}, "Status is unknown"}));

struct LookRow {
    OverallStatus status;
    std::string symbol;
    Tone tone;
};

class HeadlineLook : public testing::TestWithParam<LookRow> {};

TEST_P(HeadlineLook, IsThatOfTheStatusUnlessItIsStale)
{
    const auto& row = GetParam();
    EXPECT_EQ((Summary{.overallStatus = row.status}.symbolName()), row.symbol);
    EXPECT_EQ((Summary{.overallStatus = row.status}.tone()), row.tone);
    EXPECT_EQ((Summary{.overallStatus = row.status, .isStale = true}.symbolName()), "exclamationmark.icloud.fill");
    EXPECT_EQ((Summary{.overallStatus = row.status, .isStale = true}.tone()), Tone::orange);
}

INSTANTIATE_TEST_SUITE_P(EachStatus, HeadlineLook,
    testing::Values(LookRow{OverallStatus::operational, "checkmark.circle.fill", Tone::green},
        LookRow{OverallStatus::degraded, "exclamationmark.triangle.fill", Tone::orange},
        LookRow{OverallStatus::down, "xmark.circle.fill", Tone::red},
        LookRow{OverallStatus::maintenance, "wrench.and.screwdriver.fill", Tone::orange},
        LookRow{OverallStatus::stale, "exclamationmark.icloud.fill", Tone::secondary},
        LookRow{OverallStatus::unknown, "questionmark.circle", Tone::secondary}));

struct DetailsRow {
    Summary summary;
    Details details;
};

class OperationalDetails : public testing::TestWithParam<DetailsRow> {};

TEST_P(OperationalDetails, AreFragmentsInTheirOrder)
{
    EXPECT_EQ(GetParam().summary.operationalDetails(), GetParam().details);
}

INSTANTIATE_TEST_SUITE_P(EachRow, OperationalDetails,
    testing::Values(DetailsRow{{}, {"0 Status Pages"}}, DetailsRow{{.statusPageCount = 2}, {"2 Status Pages"}},
        DetailsRow{{.overallStatus = OverallStatus::operational, .statusPageCount = 1},
            {"1 Status Page", "No active incidents"}},
        DetailsRow{
            {.overallStatus = OverallStatus::operational, .statusPageCount = 1, .isStale = true}, {"1 Status Page"}},
        DetailsRow{{.overallStatus = OverallStatus::degraded, .statusPageCount = 1}, {"1 Status Page"}},
        DetailsRow{{.statusPageCount = 1, .activeIncidentCount = 1}, {"1 Status Page", "1 active incident"}},
        DetailsRow{{.statusPageCount = 1, .activeIncidentCount = 2}, {"1 Status Page", "2 active incidents"}},
        DetailsRow{{.statusPageCount = 1, .activeMaintenanceCount = 2, .scheduledMaintenanceCount = 1},
            {"1 Status Page", "2 maintenance in progress"}},
        DetailsRow{
            {.statusPageCount = 1, .scheduledMaintenanceCount = 3}, {"1 Status Page", "3 maintenance scheduled"}},
        DetailsRow{{.overallStatus = OverallStatus::operational, .statusPageCount = 1, .scheduledMaintenanceCount = 1},
            {"1 Status Page", "1 maintenance scheduled"}},
        DetailsRow{{.overallStatus = OverallStatus::down,
                       .statusPageCount = 4,
                       .activeIncidentCount = 2,
                       .activeMaintenanceCount = 1},
            {"4 Status Pages", "2 active incidents", "1 maintenance in progress"}}));

TEST(Headline, JoinsTheDetailsInOneLine)
{
    const Summary summary{.overallStatus = OverallStatus::operational, .statusPageCount = 1};
    EXPECT_EQ(summary.headline(),
        (presentation::Headline{.symbol = "checkmark.circle.fill",
            .tone = Tone::green,
            .title = "All systems operational",
            .details = "1 Status Page \u00B7 No active incidents"}));
}

class SummaryOfTheAccount : public testing::Test, public fakes::PolledAccount {
protected:
    Summary summary() const { return Summary::of(*state); }
};

TEST_F(SummaryOfTheAccount, CountsWhatTheHeadlineTellsApart)
{
    servePages({"a", "b", "c", "d"}, {{"a", "operational"}, {"b", "major-outage"}, {"c", "maintenance"}, {"d", "?"}});
    serveIncidents({incident("1", "a"), incident("2", "b", R"(, "acknowledged_at": "x")"),
        incident("3", "c", R"(, "incident_state_id": "4")")});
    serveMaintenances({maintenance("1", "a", R"(, "status": "In_Progress")"), maintenance("2", "b"),
        maintenance("3", "c", R"(, "status": "SCHEDULED")"), maintenance("4", "d", R"(, "status": "completed")")});
    refresh();
    EXPECT_EQ(summary(),
        (Summary{.overallStatus = OverallStatus::down,
            .statusPageCount = 4,
            .affectedPageCount = 3,
            .activeIncidentCount = 2,
            .activeMaintenanceCount = 1,
            .scheduledMaintenanceCount = 2,
            .isStale = false}));
}

TEST_F(SummaryOfTheAccount, DownThroughAnIncidentWithAllPagesOperationalReadsThatAnIncidentRequiresAttention)
{
    servePages({"a"}, {{"a", "operational"}});
    serveIncidents({incident("1", "a")});
    refresh();
    EXPECT_EQ(summary().operationalTitle(), "An active incident requires attention");
}

TEST_F(SummaryOfTheAccount, DegradedThroughAnAcknowledgedIncidentWithAllPagesOperationalReadsThatItIsInvestigated)
{
    servePages({"a"}, {{"a", "operational"}});
    serveIncidents({incident("1", "a", R"(, "acknowledged_at": "2026-11-20T09:31:00Z")")});
    refresh();
    EXPECT_EQ(summary().operationalTitle(), "An incident is being investigated");
}

TEST_F(SummaryOfTheAccount, MaintenanceByAPageWithoutAMaintenanceRecordReadsMaintenanceScheduled)
{
    servePages({"a"}, {{"a", "maintenance"}});
    refresh();
    EXPECT_EQ(summary().operationalTitle(), "Maintenance scheduled");
}

TEST_F(SummaryOfTheAccount, OperationalWithTheNetworkLostMayBeStaleAndLacksNoActiveIncidents)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    state->isReachable = false;
    EXPECT_EQ(summary().operationalTitle(), "Status may be stale");
    EXPECT_EQ(summary().tone(), Tone::orange);
    EXPECT_EQ(summary().symbolName(), "exclamationmark.icloud.fill");
    EXPECT_EQ(summary().operationalDetails(), (Details{"1 Status Page"}));
}

TEST_F(SummaryOfTheAccount, OfOnePageAndNothingElseHasTwoFragments)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    EXPECT_EQ(summary().operationalDetails(), (Details{"1 Status Page", "No active incidents"}));
}

TEST_F(SummaryOfTheAccount, AHeldOutageBesideAFailedRefreshMayBeStale)
{
    servePages({"a"}, {{"a", "major-outage"}});
    refresh();
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_EQ(summary().overallStatus, OverallStatus::down);
    EXPECT_EQ(summary().operationalTitle(), "Status may be stale");
}

TEST_F(SummaryOfTheAccount, WithoutPagesIsUnknown)
{
    servePages({}, {});
    refresh();
    EXPECT_EQ(summary().operationalTitle(), "Status is unknown");
}

TEST_F(SummaryOfTheAccount, APageInMaintenanceCountsAsAffectedBesideAnOutageByAnIncident)
{
    servePages({"a", "b"}, {{"a", "operational"}, {"b", "maintenance"}});
    serveIncidents({incident("1", "a")});
    refresh();
    EXPECT_EQ(summary().operationalTitle(), "1 Status Page requires attention");
}

}  // namespace

}  // namespace larkspan::workspace
