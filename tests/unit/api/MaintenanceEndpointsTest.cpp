#include "api/MaintenanceEndpoints.h"

#include "api/Endpoint.h"
#include "model/records/Maintenance.h"

namespace larkspan::api {

namespace {

using namespace std::chrono_literals;
using fakes::ScriptedService;

const std::string aMaintenance = R"({"data": {"id": 9, "title": "Move", "status": "scheduled"}})";
/// Reads `time` seconds after the epoch.
support::Time at(std::chrono::seconds time)
{
    return support::Time(time);
}

class MaintenanceEndpoint : public Endpoint {};

TEST_P(MaintenanceEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

TEST_P(MaintenanceEndpoint, IsOneWayToTheClientAndOneBack)
{
    expectOneWayThereAndOneBack();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, MaintenanceEndpoint,
    testing::Values(
        EndpointRow{"fetchMaintenances", [](ScriptedService& s) { return resultOf(s, s.api.fetchMaintenances()); },
            R"([{"id": "b", "title": "B"}, {"id": 2, "title": "A"}])", "GET", v1 + "/maintenances", "none", "b 2"},
        EndpointRow{"fetchMaintenance", [](ScriptedService& s) { return resultOf(s, s.api.fetchMaintenance("9")); },
            aMaintenance, "GET", v1 + "/maintenances/9", "none", "9"},
        EndpointRow{"createMaintenance",
            [](ScriptedService& s) {
                return resultOf(s,
                    s.api.createMaintenance({.title = "T",
                        .message = "M",
                        .statusPageId = "p",
                        .startAt = at(0s),
                        .endAt = at(3'600s),
                        .componentIds = {{"a", "b"}},
                        .monitorIds = {{"m"}}}));
            },
            aMaintenance, "POST", v1 + "/maintenances",
            R"({"title":"T","message":"M","status_page_id":"p","start_at":"1970-01-01T00:00:00Z",)"
            R"("end_at":"1970-01-01T01:00:00Z","affected_components":"a,b","affected_monitor_ids":"m"})",
            "9"},
        EndpointRow{"updateMaintenanceOfNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.updateMaintenance("9", {})); }, aMaintenance, "PATCH",
            v1 + "/maintenances/9", "{}", "9"},
        EndpointRow{"updateMaintenanceWithEmptyLists",
            [](ScriptedService& s) {
                return resultOf(s,
                    s.api.updateMaintenance("9",
                        {.title = "T",
                            .endAt = at(60s),
                            .componentIds = std::vector<std::string>{},
                            .monitorIds = std::vector<std::string>{}}));
            },
            aMaintenance, "PATCH", v1 + "/maintenances/9", R"({"title":"T","end_at":"1970-01-01T00:01:00Z"})", "9"},
        EndpointRow{"updateMaintenanceWithEverything",
            [](ScriptedService& s) {
                return resultOf(s,
                    s.api.updateMaintenance("9",
                        {.title = "T",
                            .message = "M",
                            .startAt = at(0s),
                            .endAt = at(60s),
                            .componentIds = {{"a"}},
                            .monitorIds = {{"m", "n"}}}));
            },
            aMaintenance, "PATCH", v1 + "/maintenances/9",
            R"({"title":"T","message":"M","start_at":"1970-01-01T00:00:00Z","end_at":"1970-01-01T00:01:00Z",)"
            R"("affected_components":"a","affected_monitor_ids":"m,n"})",
            "9"},
        EndpointRow{"deleteMaintenance", [](ScriptedService& s) { return resultOf(s, s.api.deleteMaintenance("9")); },
            "{}", "DELETE", v1 + "/maintenances/9", "none", "nothing"}),
    [](const auto& row) { return row.param.name; });

class Maintenances : public testing::Test, public ScriptedService {};

TEST_F(Maintenances, EachOperationFailsWithTheStatusOfTheAnswer)
{
    transport.script(v1 + "/maintenances/9", 404, "");
    EXPECT_EQ(failure(api.deleteMaintenance("9")), "Server returned HTTP status code 404.");
    EXPECT_EQ(failure(api.updateMaintenance("9", {})), "Server returned HTTP status code 404.");
}

TEST_F(Maintenances, TheStopOfTheCallerReachesTheTransportForBothLists)
{
    std::stop_source stop;
    support::start(main, [](KestruneAPI& kestrune, std::stop_token token) -> support::Task<void> {
        try {
            auto fetching = kestrune.fetchMaintenances(token);
            co_await std::move(fetching);
        } catch (const platform::URLError&) {
        }
    }(api, stop.get_token()));
    run();
    ASSERT_EQ(transport.pending.size(), 1u);
    stop.request_stop();
    EXPECT_TRUE(transport.pending[0].stop.stop_requested());
    transport.answer(platform::URLError::Code::cancelled);
    run();
}

}  // namespace

}  // namespace larkspan::api
