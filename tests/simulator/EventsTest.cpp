#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "Samples.h"
#include "fakes/ManualClock.h"
#include "service/Service.h"
#include "json/Json.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;
using samples::request;

constexpr auto incidentsPath = "/user/api/v1/incidents";
constexpr auto maintenancesPath = "/user/api/v1/maintenances";
constexpr auto statesPath = "/user/api/incident-states";

class Events : public testing::Test {
protected:
    Events() { service_.setShape(ResultShape::bare); }

    Json get(const std::string& target) { return parsedJson(service_.answer(request(target)).body); }

    fakes::ManualClock clock_;
    Service service_{samples::account(), clock_};
};

TEST_F(Events, OfAnAccountWithoutAnyAreTwoEmptyLists)
{
    EXPECT_EQ(service_.answer(request(incidentsPath)).body, "[]");
    EXPECT_EQ(service_.answer(request(maintenancesPath)).body, "[]");
}

TEST_F(Events, ComeUnderDataToo)
{
    service_.setShape(ResultShape::underData);

    EXPECT_EQ(service_.answer(request(incidentsPath)).body, R"({"data":[]})");
    EXPECT_EQ(service_.answer(request(maintenancesPath)).body, R"({"data":[]})");
    EXPECT_TRUE(get(statesPath).at("data").contains("incident_states"));
}

TEST_F(Events, StatesAreNumberedStages)
{
    EXPECT_EQ(service_.answer(request(statesPath)).body,
        R"({"incident_states":[{"id":1,"stage":"Investigating","sort_order":1},)"
        R"({"id":2,"stage":"Identified","sort_order":2},{"id":3,"stage":"Monitoring","sort_order":3},)"
        R"({"id":4,"stage":"Resolved","sort_order":4}]})");
}

TEST_F(Events, AnIncidentTravelsInSnakeCaseWithItsStateAsTextAndLeavesOutWhatItLacks)
{
    service_.withAccount([this](Account& account) {
        Incident incident;
        incident.id = "i1";
        incident.title = "Down";
        incident.createdAt = clock_.time;
        incident.acknowledgedAt = clock_.time + 1s;
        incident.statusPageId = "page-1";
        incident.stateId = 2;
        account.incidents.push_back(incident);
    });

    EXPECT_EQ(service_.answer(request(incidentsPath)).body,
        R"([{"id":"i1","title":"Down","created_at":"2026-11-20T09:00:00Z","acknowledged_at":"2026-11-20T09:00:01Z",)"
        R"("status_page_id":"page-1","incident_state_id":"2","incident_state":"Identified"}])");
}

TEST_F(Events, IncidentsOfOnePageAreAskedForByItsEncodedId)
{
    service_.withAccount([](Account& account) {
        for (const auto* page : {"a b", "c"}) {
            Incident incident;
            incident.id = page;
            incident.statusPageId = page;
            account.incidents.push_back(incident);
        }
    });

    const auto ofPage = get(std::string(incidentsPath) + "?x=1&status_page_id=a%20b");
    EXPECT_EQ(ofPage.size(), 1u);
    EXPECT_EQ(ofPage.at(0).at("id"), Json("a b"));
    EXPECT_EQ(get(std::string(incidentsPath) + "?status_page_id=d").size(), 0u);
}

TEST_F(Events, AMaintenancesIdOfDigitsTravelsAsANumberAndItsStatusFollowsTheClock)
{
    service_.withAccount([this](Account& account) {
        Maintenance maintenance;
        maintenance.id = "7";
        maintenance.title = "Upgrade";
        maintenance.startAt = clock_.time + 1h;
        maintenance.endAt = clock_.time + 2h;
        maintenance.affectedComponents = "1,2";
        account.maintenances.push_back(maintenance);
    });

    EXPECT_EQ(service_.answer(request(maintenancesPath)).body,
        R"([{"id":7,"title":"Upgrade","status":"scheduled","start_at":"2026-11-20T10:00:00Z",)"
        R"("end_at":"2026-11-20T11:00:00Z","affected_components":"1,2"}])");
}

struct PhaseRow {
    std::string_view name;
    std::optional<std::chrono::minutes> start;
    std::optional<std::chrono::minutes> end;
    MaintenancePhase phase;
};

class Phase : public testing::TestWithParam<PhaseRow> {};

TEST_P(Phase, FollowsFromTheDates)
{
    const support::Time now{std::chrono::sys_days(std::chrono::year(2026) / 5 / 1)};
    Maintenance maintenance;
    if (GetParam().start) maintenance.startAt = now + *GetParam().start;
    if (GetParam().end) maintenance.endAt = now + *GetParam().end;

    EXPECT_EQ(maintenance.phaseAt(now), GetParam().phase);
}

INSTANTIATE_TEST_SUITE_P(EachOrder, Phase,
    testing::Values(PhaseRow{"Ahead", 1min, 2min, MaintenancePhase::scheduled},
        PhaseRow{"Starting", 0min, 2min, MaintenancePhase::inProgress},
        PhaseRow{"Running", -1min, 1min, MaintenancePhase::inProgress},
        PhaseRow{"RunningWithoutEnd", -1min, std::nullopt, MaintenancePhase::inProgress},
        PhaseRow{"Ending", -1min, 0min, MaintenancePhase::completed},
        PhaseRow{"Past", -2min, -1min, MaintenancePhase::completed},
        PhaseRow{"WithoutDates", std::nullopt, std::nullopt, MaintenancePhase::scheduled}),
    [](const auto& row) { return std::string(row.param.name); });

class SeededEvents : public testing::Test {
protected:
    static bool anyOf(const Account& account, const StatusPage& page, auto&& isIt)
    {
        return std::ranges::any_of(account.incidents,
            [&](const Incident& incident) { return incident.statusPageId == page.id && isIt(incident); });
    }

    const support::Time now_{std::chrono::sys_days(std::chrono::year(2026) / 5 / 1)};
};

TEST_F(SeededEvents, AgreeWithEachPagesStatus)
{
    const auto account = seededAccount(50, now_);
    for (const auto& page : account.statusPages) {
        const bool isTroubled = page.status == "down" || page.status == "degraded";
        EXPECT_EQ(anyOf(account, page, [](const Incident& incident) { return incident.isOpen(); }), isTroubled);
        const bool isWorkedOn = std::ranges::any_of(account.maintenances, [&](const Maintenance& maintenance) {
            return maintenance.statusPageId == page.id && maintenance.phaseAt(now_) == MaintenancePhase::inProgress;
        });
        EXPECT_EQ(isWorkedOn, page.status == "maintenance");
    }
}

TEST_F(SeededEvents, OfTenThousandPagesAreTensOfThousandsWithEachIdOnceNewestFirst)
{
    const auto account = seededAccount(10'000, now_);

    std::set<std::string> ids;
    for (const auto& incident : account.incidents) ids.insert(incident.id);
    for (const auto& maintenance : account.maintenances) ids.insert(maintenance.id);
    EXPECT_GT(account.incidents.size(), 10'000u);
    EXPECT_GT(account.maintenances.size(), 7'500u);
    EXPECT_EQ(ids.size(), account.incidents.size() + account.maintenances.size());
    EXPECT_TRUE(std::ranges::is_sorted(account.incidents, std::greater<>{}, &Incident::createdAt));
    EXPECT_TRUE(std::ranges::is_sorted(account.maintenances, std::greater<>{}, &Maintenance::createdAt));
}

TEST_F(SeededEvents, OfATinyAccountAreAllOver)
{
    const auto account = seededAccount(3, now_);

    EXPECT_FALSE(account.incidents.empty());
    EXPECT_TRUE(std::ranges::none_of(account.incidents, &Incident::isOpen));
    EXPECT_FALSE(account.maintenances.empty());
    for (const auto& maintenance : account.maintenances) {
        EXPECT_EQ(maintenance.phaseAt(now_), MaintenancePhase::completed);
    }
}

}  // namespace
}  // namespace larkspan::simulator
