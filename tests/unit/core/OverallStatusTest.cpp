#include "core/OverallStatus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace larkspan::core {

namespace {

using model::Incident;
using model::IncidentStatus;
using model::Maintenance;
using model::StatusPage;
using model::StatusPageStatus;

constexpr std::array pageStatuses{StatusPageStatus::operational, StatusPageStatus::degraded, StatusPageStatus::down,
    StatusPageStatus::maintenance, StatusPageStatus::unknown};
constexpr std::array incidentStatuses{
    IncidentStatus::active, IncidentStatus::acknowledged, IncidentStatus::resolved, IncidentStatus::completed};
const std::vector<std::string> maintenanceStatuses{
    "scheduled", "In_Progress", "completed", "whatever the service says"};

StatusPage pageWith(StatusPageStatus status)
{
    StatusPage page;
    page.status = status;
    return page;
}

Incident incidentWith(IncidentStatus status)
{
    Incident incident;
    incident.status = status;
    return incident;
}

Maintenance maintenanceWith(const std::string& status)
{
    Maintenance maintenance;
    maintenance.status = status;
    return maintenance;
}

/// The members of `all` that the bits of `subset` select.
template <typename All>
auto chosen(const All& all, unsigned subset)
{
    std::vector<typename All::value_type> present;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (subset >> i & 1u) present.push_back(all[i]);
    }
    return present;
}

template <typename Statuses, typename Make>
auto recordsOf(const Statuses& statuses, Make make)
{
    std::vector<decltype(make(statuses.front()))> records;
    for (const auto& status : statuses) records.push_back(make(status));
    return records;
}

/// The decision table in its order: the first rule that applies gives the result.
OverallStatus expected(const std::vector<StatusPageStatus>& pages, const std::vector<IncidentStatus>& incidents,
    const std::vector<std::string>& maintenances, bool hasError)
{
    if (pages.empty()) return hasError ? OverallStatus::stale : OverallStatus::unknown;
    const auto in = [](const auto& list, const auto& value) { return std::ranges::count(list, value) > 0; };
    const std::array<std::pair<bool, OverallStatus>, 4> rules{{
        {in(pages, StatusPageStatus::down) || in(incidents, IncidentStatus::active), OverallStatus::down},
        {in(pages, StatusPageStatus::degraded) || in(incidents, IncidentStatus::acknowledged), OverallStatus::degraded},
        {in(pages, StatusPageStatus::maintenance) || in(maintenances, "scheduled") || in(maintenances, "In_Progress"),
            OverallStatus::maintenance},
        {in(pages, StatusPageStatus::operational), OverallStatus::operational},
    }};
    const auto* const rule = std::ranges::find(rules, true, &std::pair<bool, OverallStatus>::first);
    const auto result = rule == rules.end() ? OverallStatus::unknown : rule->second;
    return hasError && result != OverallStatus::down ? OverallStatus::stale : result;
}

TEST(RolledUpStatus, FollowsTheDecisionTableForEverySetOfPagesIncidentsAndMaintenances)
{
    int rows = 0;
    for (unsigned pages = 0; pages < 32; ++pages) {
        for (unsigned incidents = 0; incidents < 16; ++incidents) {
            for (unsigned maintenances = 0; maintenances < 16; ++maintenances) {
                for (const bool hasError : {false, true}) {
                    const auto ofPages = chosen(pageStatuses, pages);
                    const auto ofIncidents = chosen(incidentStatuses, incidents);
                    const auto ofMaintenances = chosen(maintenanceStatuses, maintenances);
                    ASSERT_EQ(rolledUpStatus(recordsOf(ofPages, pageWith), recordsOf(ofIncidents, incidentWith),
                                  recordsOf(ofMaintenances, maintenanceWith), hasError),
                        expected(ofPages, ofIncidents, ofMaintenances, hasError))
                        << "pages " << pages << ", incidents " << incidents << ", maintenances " << maintenances;
                    ++rows;
                }
            }
        }
    }
    EXPECT_EQ(rows, 32 * 16 * 16 * 2);
}

TEST(RolledUpStatus, OfNoPagesIsUnknownAndStaleWithAnError)
{
    EXPECT_EQ(rolledUpStatus({}, {}, {}, false), OverallStatus::unknown);
    EXPECT_EQ(rolledUpStatus({}, {}, {}, true), OverallStatus::stale);
}

TEST(RolledUpStatus, OfNoPagesDoesNotLookAtHeldIncidentsAndMaintenances)
{
    const std::vector incidents{incidentWith(IncidentStatus::active)};
    const std::vector maintenances{maintenanceWith("in_progress")};
    EXPECT_EQ(rolledUpStatus({}, incidents, maintenances, false), OverallStatus::unknown);
    EXPECT_EQ(rolledUpStatus({}, incidents, maintenances, true), OverallStatus::stale);
}

TEST(RolledUpStatus, OneOperationalPageAndOneActiveIncidentIsDownWithAnErrorToo)
{
    const std::vector pages{pageWith(StatusPageStatus::operational)};
    const std::vector incidents{incidentWith(IncidentStatus::active)};
    EXPECT_EQ(rolledUpStatus(pages, incidents, {}, false), OverallStatus::down);
    EXPECT_EQ(rolledUpStatus(pages, incidents, {}, true), OverallStatus::down);
}

TEST(RolledUpStatus, OneOperationalPageAndOneAcknowledgedIncidentIsStaleWithAnError)
{
    const std::vector pages{pageWith(StatusPageStatus::operational)};
    const std::vector incidents{incidentWith(IncidentStatus::acknowledged)};
    EXPECT_EQ(rolledUpStatus(pages, incidents, {}, true), OverallStatus::stale);
    EXPECT_EQ(rolledUpStatus(pages, incidents, {}, false), OverallStatus::degraded);
}

TEST(RolledUpStatus, OfUnknownPagesAloneIsUnknownAndStaleWithAnError)
{
    const std::vector pages{pageWith(StatusPageStatus::unknown), pageWith(StatusPageStatus::unknown)};
    EXPECT_EQ(rolledUpStatus(pages, {}, {}, false), OverallStatus::unknown);
    EXPECT_EQ(rolledUpStatus(pages, {}, {}, true), OverallStatus::stale);
}

TEST(RolledUpStatus, OfTwoPagesOneUnknownAndOneOperationalIsOperational)
{
    const std::vector pages{pageWith(StatusPageStatus::unknown), pageWith(StatusPageStatus::operational)};
    EXPECT_EQ(rolledUpStatus(pages, {}, {}, false), OverallStatus::operational);
}

TEST(RolledUpStatus, AMaintenanceStatusInCapitalLettersCountsAsOpenAndCompletedDoesNot)
{
    const std::vector pages{pageWith(StatusPageStatus::operational)};
    for (const auto* const open : {"SCHEDULED", "IN_PROGRESS", "Scheduled", "in_progress"}) {
        EXPECT_EQ(rolledUpStatus(pages, {}, {maintenanceWith(open)}, false), OverallStatus::maintenance) << open;
    }
    for (const auto* const closed : {"completed", "COMPLETED", "", " scheduled", "in progress", "in_progress2"}) {
        EXPECT_EQ(rolledUpStatus(pages, {}, {maintenanceWith(closed)}, false), OverallStatus::operational) << closed;
    }
}

TEST(RolledUpStatus, OfAPageInMaintenanceAndADegradedOneIsDegraded)
{
    const std::vector pages{pageWith(StatusPageStatus::maintenance), pageWith(StatusPageStatus::degraded)};
    EXPECT_EQ(rolledUpStatus(pages, {}, {}, false), OverallStatus::degraded);
}

struct TextsRow {
    OverallStatus status;
    std::string rawValue;
    std::string symbolName;
    std::string summary;
};

class OverallStatusTexts : public testing::TestWithParam<TextsRow> {};

TEST_P(OverallStatusTexts, AreThoseThatEveryScreenShares)
{
    const auto& row = GetParam();
    EXPECT_EQ(rawValue(row.status), row.rawValue);
    EXPECT_EQ(statusSymbolName(row.status), row.symbolName);
    EXPECT_EQ(statusSummaryText(row.status), row.summary);
    EXPECT_EQ(overallStatusOf(row.rawValue), row.status);
}

INSTANTIATE_TEST_SUITE_P(EachCase, OverallStatusTexts,
    testing::Values(
        TextsRow{OverallStatus::operational, "Operational", "checkmark.circle.fill", "All systems operational"},
        TextsRow{OverallStatus::degraded, "Degraded", "exclamationmark.triangle.fill", "Some systems degraded"},
        TextsRow{OverallStatus::down, "Down", "xmark.circle.fill", "Some systems down"},
        TextsRow{OverallStatus::maintenance, "Maintenance", "wrench.and.screwdriver.fill", "Maintenance in progress"},
        TextsRow{OverallStatus::stale, "Stale", "exclamationmark.icloud.fill", "Status stale, refresh failed"},
        TextsRow{OverallStatus::unknown, "Unknown", "questionmark.circle", "Status unknown"}));

TEST(OverallStatusTexts, AnUnknownRawValueYieldsNoCase)
{
    for (const auto* const text : {"", "operational", "DOWN", "Broken"}) EXPECT_EQ(overallStatusOf(text), std::nullopt);
}

}  // namespace

}  // namespace larkspan::core
