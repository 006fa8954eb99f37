#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "api/APIError.h"
#include "fakes/Service.h"

namespace larkspan::api {

namespace {

using namespace std::chrono_literals;
using fakes::Service;
using platform::HttpRequest;
using platform::HttpResponse;

const std::string v1 = "https://service.example/user/api/v1";
const std::string feature = "https://service.example/user/api";
const std::string anIncident
    = R"({"data": {"id": "7", "title": "Login errors", "created_at": "2026-11-20T09:30:00Z"}})";
const std::string aMaintenance = R"({"data": {"id": 9, "title": "Move", "status": "scheduled"}})";
const std::string theStates
    = R"({"incident_states": [{"id": 1, "stage": "Open", "sort_order": 1}, {"id": 12, "stage": "RESOLVED", "sort_order": 2},
        {"id": 13, "stage": "Resolved", "sort_order": 3}]})";

/// Reads `time` seconds after the epoch.
support::Time at(std::chrono::seconds time)
{
    return support::Time(time);
}

struct EndpointRow {
    std::string name;
    std::function<std::string(Service&)> call;
    std::string answer;
    std::string method;
    std::string url;
    std::string body;
    std::string result;
};

std::string describe(const model::Incident& incident)
{
    return "incident " + incident.id;
}

std::string describe(const model::Maintenance& maintenance)
{
    return "maintenance " + maintenance.id;
}

template <typename Record>
std::string describe(const std::vector<Record>& records)
{
    std::string all = "list of";
    for (const auto& record : records) all += " " + describe(record);
    return all;
}

template <typename T>
std::string resultOf(Service& service, support::Task<T> task)
{
    if constexpr (std::is_void_v<T>) {
        service.result(std::move(task));
        return "nothing";
    } else {
        return describe(service.result(std::move(task)));
    }
}

class Endpoint : public testing::TestWithParam<EndpointRow>, public Service {};

TEST_P(Endpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    const auto& row = GetParam();
    transport.script(row.url, 200, row.answer);
    EXPECT_EQ(row.call(*this), row.result);
    ASSERT_EQ(transport.requests.size(), 1u);
    const HttpRequest& sent = transport.requests[0];
    EXPECT_EQ(sent.method, row.method);
    EXPECT_EQ(sent.url, row.url);
    EXPECT_EQ(sent.body.value_or("none"), row.body);
}

INSTANTIATE_TEST_SUITE_P(EachOperation, Endpoint,
    testing::Values(EndpointRow{"fetchIncidents", [](Service& s) { return resultOf(s, s.api.fetchIncidents()); },
                        R"([{"id": "b", "title": "B", "created_at": "2026-11-20T09:30:00Z"},
                {"id": "a", "title": "A", "created_at": "2026-11-20T09:30:00Z"}])",
                        "GET", v1 + "/incidents", "none", "list of incident b incident a"},
        EndpointRow{"fetchIncidentsOfAPage", [](Service& s) { return resultOf(s, s.api.fetchIncidents("abc")); }, "[]",
            "GET", v1 + "/incidents?status_page_id=abc", "none", "list of"},
        EndpointRow{"fetchIncidentsOfAnEmptyId", [](Service& s) { return resultOf(s, s.api.fetchIncidents("")); }, "[]",
            "GET", v1 + "/incidents", "none", "list of"},
        EndpointRow{"fetchIncident", [](Service& s) { return resultOf(s, s.api.fetchIncident("7")); }, anIncident,
            "GET", v1 + "/incidents/7", "none", "incident 7"},
        EndpointRow{"createIncident",
            [](Service& s) {
                return resultOf(s,
                    s.api.createIncident({.title = "T",
                        .message = "M",
                        .statusPageId = "p",
                        .componentId = "c",
                        .monitorId = "m",
                        .notifySubscribers = true}));
            },
            anIncident, "POST", v1 + "/incidents",
            R"({"title":"T","message":"M","status_page_id":"p","component_id":"c","monitor_id":"m","notify_subscribers":true})",
            "incident 7"},
        EndpointRow{"createIncidentOfATitleAlone",
            [](Service& s) { return resultOf(s, s.api.createIncident({.title = "T"})); }, anIncident, "POST",
            v1 + "/incidents", R"({"title":"T","notify_subscribers":false})", "incident 7"},
        EndpointRow{"updateIncident", [](Service& s) { return resultOf(s, s.api.updateIncident("7", "more")); },
            anIncident, "PATCH", v1 + "/incidents/7", R"({"message":"more","append_update":true})", "incident 7"},
        EndpointRow{"appendIncidentUpdate",
            [](Service& s) { return resultOf(s, s.api.appendIncidentUpdate("7", "more", "3")); }, anIncident, "PATCH",
            v1 + "/incidents/7", R"({"message":"more","incident_state_id":"3","append_update":true})", "incident 7"},
        EndpointRow{"appendIncidentUpdateOfNothing",
            [](Service& s) { return resultOf(s, s.api.appendIncidentUpdate("7", {}, {})); }, anIncident, "PATCH",
            v1 + "/incidents/7", R"({"append_update":true})", "incident 7"},
        EndpointRow{"acknowledgeIncident", [](Service& s) { return resultOf(s, s.api.acknowledgeIncident("7")); }, "{}",
            "POST", feature + "/incidents/7/acknowledge", "none", "nothing"},
        EndpointRow{"acknowledgeIncidentAnsweredWithNothing",
            [](Service& s) { return resultOf(s, s.api.acknowledgeIncident("7")); }, "", "POST",
            feature + "/incidents/7/acknowledge", "none", "nothing"},
        EndpointRow{"escalateIncident", [](Service& s) { return resultOf(s, s.api.escalateIncident("7")); }, "{}",
            "POST", feature + "/incidents/7/escalate", "none", "nothing"},
        EndpointRow{"deleteIncident", [](Service& s) { return resultOf(s, s.api.deleteIncident("7")); }, "", "DELETE",
            v1 + "/incidents/7", "none", "nothing"},
        EndpointRow{"fetchMaintenances", [](Service& s) { return resultOf(s, s.api.fetchMaintenances()); },
            R"([{"id": "b", "title": "B"}, {"id": 2, "title": "A"}])", "GET", v1 + "/maintenances", "none",
            "list of maintenance b maintenance 2"},
        EndpointRow{"fetchMaintenance", [](Service& s) { return resultOf(s, s.api.fetchMaintenance("9")); },
            aMaintenance, "GET", v1 + "/maintenances/9", "none", "maintenance 9"},
        EndpointRow{"createMaintenance",
            [](Service& s) {
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
            "maintenance 9"},
        EndpointRow{"updateMaintenanceOfNothing",
            [](Service& s) { return resultOf(s, s.api.updateMaintenance("9", {})); }, aMaintenance, "PATCH",
            v1 + "/maintenances/9", "{}", "maintenance 9"},
        EndpointRow{"updateMaintenanceWithEmptyLists",
            [](Service& s) {
                return resultOf(s,
                    s.api.updateMaintenance("9",
                        {.title = "T",
                            .endAt = at(60s),
                            .componentIds = std::vector<std::string>{},
                            .monitorIds = std::vector<std::string>{}}));
            },
            aMaintenance, "PATCH", v1 + "/maintenances/9", R"({"title":"T","end_at":"1970-01-01T00:01:00Z"})",
            "maintenance 9"},
        EndpointRow{"updateMaintenanceWithEverything",
            [](Service& s) {
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
            "maintenance 9"},
        EndpointRow{"deleteMaintenance", [](Service& s) { return resultOf(s, s.api.deleteMaintenance("9")); }, "{}",
            "DELETE", v1 + "/maintenances/9", "none", "nothing"}),
    [](const auto& row) { return row.param.name; });

class Incidents : public testing::Test, public Service {
protected:
    const std::string statesURL = feature + "/incident-states";
    const std::string incidentURL = v1 + "/incidents/7";
};

TEST_F(Incidents, APageIdWithACharacterOutsideTheQuerySetReachesTheServerPercentEncoded)
{
    const auto url = v1 + "/incidents?status_page_id=a%20%23%C3%A4,b/?";
    transport.script(url, 200, "[]");
    result(api.fetchIncidents("a #\u00e4,b/?"));
    EXPECT_EQ(transport.requests.at(0).url, url);
}

TEST_F(Incidents, APageIdThatIsNoTextIsUsedRawAndGivesNoURL)
{
    EXPECT_EQ(failure(api.fetchIncidents("\xff")), "Could not build a valid API URL.");
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Incidents, A200WithAJSONListIsADecodingFailureOfAcknowledgeAlthoughItTookEffect)
{
    transport.script(feature + "/incidents/7/acknowledge", 200, "[]");
    EXPECT_NE(failure(api.acknowledgeIncident("7")), "no failure");
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Incidents, ResolveAsksForTheStatesAndSendsTheIdOfTheFirstThatIsCalledResolvedInAnyCaseOfLetters)
{
    transport.script(statesURL, 200, theStates);
    transport.script(incidentURL, 200, anIncident);
    result(api.resolveIncident("7"));
    ASSERT_EQ(transport.requests.size(), 2u);
    EXPECT_EQ(transport.requests[0].method, "GET");
    EXPECT_EQ(transport.requests[0].url, statesURL);
    EXPECT_EQ(transport.requests[1].method, "PATCH");
    EXPECT_EQ(transport.requests[1].url, incidentURL);
    EXPECT_EQ(transport.requests[1].body, R"({"incident_state_id":"12","append_update":true})");
}

TEST_F(Incidents, ResolveGivesTheRecordAsTheServiceSendsItWithNoLocalChange)
{
    transport.script(statesURL, 200, theStates);
    transport.script(incidentURL, 200, anIncident);
    EXPECT_EQ(result(api.resolveIncident("7")).status, model::IncidentStatus::active);
}

TEST_F(Incidents, ASecondResolveSendsNoFurtherRequestForTheStates)
{
    transport.script(statesURL, 200, theStates);
    transport.script(incidentURL, 200, anIncident);
    result(api.resolveIncident("7"));
    result(api.resolveIncident("7"));
    EXPECT_EQ(transport.requests.size(), 3u);
    EXPECT_EQ(transport.requests[2].method, "PATCH");
}

TEST_F(Incidents, AnAccountWithoutAResolvedStateGetsItsTextAndTheStatesStayKnown)
{
    transport.script(statesURL, 200,
        R"({"incident_states": [{"id": 1, "stage": "Open", "sort_order": 1}, {"id": 2, "stage": "Closed", "sort_order": 2}]})");
    const std::string text = "This account has no \"Resolved\" incident state configured.";
    EXPECT_EQ(failure(api.resolveIncident("7")), text);
    EXPECT_EQ(failure(api.resolveIncident("7")), text);
    EXPECT_EQ(transport.requests.size(), 1u) << "nothing but the states was asked for, once";
    EXPECT_EQ(result(api.fetchIncidentStates()).size(), 2u);
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Incidents, AnEmptyListOfStatesIsKeptToo)
{
    transport.script(statesURL, 200, R"({"incident_states": []})");
    EXPECT_TRUE(result(api.fetchIncidentStates()).empty());
    EXPECT_TRUE(result(api.fetchIncidentStates()).empty());
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Incidents, AFailedFetchOfTheStatesEndsTheResolveAndIsMadeAgainNextTime)
{
    transport.script(statesURL, 500, "");
    EXPECT_EQ(failure(api.resolveIncident("7")), "Server returned HTTP status code 500.");
    transport.script(statesURL, 200, theStates);
    transport.script(incidentURL, 200, anIncident);
    EXPECT_EQ(failure(api.resolveIncident("7")), "no failure");
}

TEST_F(Incidents, TwoResolvesAtOnceMayBothAskForTheStatesAndBothSucceed)
{
    transport.script(incidentURL, 200, anIncident);
    support::start(main, [](KestruneAPI& kestrune) -> support::Task<void> {
        auto resolving = kestrune.resolveIncident("7");
        co_await std::move(resolving);
    }(api));
    run();
    ASSERT_EQ(transport.pending.size(), 1u);
    transport.script(statesURL, 200, theStates);
    result(api.resolveIncident("7"));
    transport.answer(HttpResponse{.status = 200, .body = theStates});
    run();
    EXPECT_EQ(transport.requests.size(), 4u);
    EXPECT_TRUE(transport.pending.empty());
}

TEST_F(Incidents, EachOperationFailsWithTheStatusOfTheAnswer)
{
    transport.script(v1 + "/maintenances/9", 404, "");
    EXPECT_EQ(failure(api.deleteMaintenance("9")), "Server returned HTTP status code 404.");
    EXPECT_EQ(failure(api.updateMaintenance("9", {})), "Server returned HTTP status code 404.");
}

TEST_F(Incidents, TheStopOfTheCallerReachesTheTransportForBothLists)
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
