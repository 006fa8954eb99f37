#include "api/IncidentEndpoints.h"

#include "api/Endpoint.h"
#include "api/KeychainHelper.h"
#include "model/bodies/IncidentRequests.h"
#include "model/records/Incident.h"

namespace larkspan::api {

namespace {

using fakes::ScriptedService;
using platform::HttpResponse;

const std::string anIncident
    = R"({"data": {"id": "7", "title": "Login errors", "created_at": "2026-11-20T09:30:00Z"}})";
const std::string theStates
    = R"({"incident_states": [{"id": 1, "stage": "Open", "sort_order": 1}, {"id": 12, "stage": "RESOLVED", "sort_order": 2},
        {"id": 13, "stage": "Resolved", "sort_order": 3}]})";

class IncidentEndpoint : public Endpoint {};

TEST_P(IncidentEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

TEST_P(IncidentEndpoint, IsOneWayToTheClientAndOneBack)
{
    expectOneWayThereAndOneBack();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, IncidentEndpoint,
    testing::Values(
        EndpointRow{"fetchIncidents", [](ScriptedService& s) { return resultOf(s, s.api.fetchIncidents()); },
            R"([{"id": "b", "title": "B", "created_at": "2026-11-20T09:30:00Z"},
                {"id": "a", "title": "A", "created_at": "2026-11-20T09:30:00Z"}])",
            "GET", v1 + "/incidents", "none", "b a"},
        EndpointRow{"fetchIncidentsOfAPage",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchIncidents("abc")); }, "[]", "GET",
            v1 + "/incidents?status_page_id=abc", "none", ""},
        EndpointRow{"fetchIncidentsOfAnEmptyId",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchIncidents("")); }, "[]", "GET", v1 + "/incidents",
            "none", ""},
        EndpointRow{"fetchIncident", [](ScriptedService& s) { return resultOf(s, s.api.fetchIncident("7")); },
            anIncident, "GET", v1 + "/incidents/7", "none", "7"},
        EndpointRow{"createIncident",
            [](ScriptedService& s) {
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
            "7"},
        EndpointRow{"createIncidentOfATitleAlone",
            [](ScriptedService& s) { return resultOf(s, s.api.createIncident({.title = "T"})); }, anIncident, "POST",
            v1 + "/incidents", R"({"title":"T","notify_subscribers":false})", "7"},
        EndpointRow{"updateIncident", [](ScriptedService& s) { return resultOf(s, s.api.updateIncident("7", "more")); },
            anIncident, "PATCH", v1 + "/incidents/7", R"({"message":"more","append_update":true})", "7"},
        EndpointRow{"appendIncidentUpdate",
            [](ScriptedService& s) { return resultOf(s, s.api.appendIncidentUpdate("7", "more", "3")); }, anIncident,
            "PATCH", v1 + "/incidents/7", R"({"message":"more","incident_state_id":"3","append_update":true})", "7"},
        EndpointRow{"appendIncidentUpdateOfNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.appendIncidentUpdate("7", {}, {})); }, anIncident,
            "PATCH", v1 + "/incidents/7", R"({"append_update":true})", "7"},
        EndpointRow{"acknowledgeIncident",
            [](ScriptedService& s) { return resultOf(s, s.api.acknowledgeIncident("7")); }, "{}", "POST",
            feature + "/incidents/7/acknowledge", "none", "nothing"},
        EndpointRow{"acknowledgeIncidentAnsweredWithNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.acknowledgeIncident("7")); }, "", "POST",
            feature + "/incidents/7/acknowledge", "none", "nothing"},
        EndpointRow{"escalateIncident", [](ScriptedService& s) { return resultOf(s, s.api.escalateIncident("7")); },
            "{}", "POST", feature + "/incidents/7/escalate", "none", "nothing"},
        EndpointRow{"escalateIncidentAnsweredWithNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.escalateIncident("7")); }, "", "POST",
            feature + "/incidents/7/escalate", "none", "nothing"},
        EndpointRow{"fetchIncidentOfAnIdWithASlash",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchIncident("a/b")); }, anIncident, "GET",
            v1 + "/incidents/a/b", "none", "7"},
        EndpointRow{"fetchIncidentOfAnIdWithAQuestionMark",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchIncident("a?b/c")); }, anIncident, "GET",
            v1 + "/incidents/a?b/c", "none", "7"},
        EndpointRow{"deleteIncident", [](ScriptedService& s) { return resultOf(s, s.api.deleteIncident("7")); }, "",
            "DELETE", v1 + "/incidents/7", "none", "nothing"}),
    [](const auto& row) { return row.param.name; });

class Incidents : public testing::Test, public ScriptedService {
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

TEST_F(Incidents, A200WithAJSONListIsADecodingFailureOfEscalateToo)
{
    transport.script(feature + "/incidents/7/escalate", 200, "[]");
    EXPECT_NE(failure(api.escalateIncident("7")), "no failure");
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Incidents, AnIdWithAQuestionMarkThatMakesNoURLIsRefused)
{
    EXPECT_EQ(failure(api.deleteIncident("a?b c")), "Could not build a valid API URL.");
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Incidents, AnEncodingErrorSendsNothingAndComesBeforeAMissingKey)
{
    KeychainHelper::deleteAPIKey(credentials);
    EXPECT_EQ(
        failure(api.updateIncident("7", "\xC0\x80")), "The request could not be written: message is not valid text.");
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_EQ(failure(api.updateIncident("7", "text")), "API key is missing.");
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

TEST_F(Incidents, AResolveIsOneWayToTheClientAndOneBackForBothItsRequests)
{
    transport.script(statesURL, 200, theStates);
    transport.script(incidentURL, 200, anIncident);
    result(api.resolveIncident("7"));
    EXPECT_EQ(client.posts(), 3) << "the operation and two answers";
    EXPECT_EQ(main.posts(), 3) << "the result, and the start and the end of the task that waits for it";
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

TEST_F(Incidents, AResolveWhoseLastRequestFailsFailsWithThatAndTheStatesStayKnown)
{
    transport.script(statesURL, 200, theStates);
    transport.script(incidentURL, 409, "");
    EXPECT_EQ(failure(api.resolveIncident("7")), "Server returned HTTP status code 409.");
    transport.script(incidentURL, 200, anIncident);
    EXPECT_EQ(failure(api.resolveIncident("7")), "no failure");
    EXPECT_EQ(transport.requests.size(), 3u) << "the states once, the incident twice";
}

TEST_F(Incidents, TheStatesOutliveTheKey)
{
    transport.script(statesURL, 200, theStates);
    result(api.fetchIncidentStates());
    KeychainHelper::deleteAPIKey(credentials);
    EXPECT_EQ(result(api.fetchIncidentStates()).size(), 3u);
    EXPECT_EQ(transport.requests.size(), 1u);
}

/// Two requests for the states are under way.
class TwoAnswers : public Incidents {
protected:
    TwoAnswers()
    {
        for (int request = 0; request < 2; ++request) {
            support::start(main, [](KestruneAPI& kestrune) -> support::Task<void> {
                try {
                    auto fetching = kestrune.fetchIncidentStates();
                    co_await std::move(fetching);
                } catch (const support::LocalizedError&) {
                }
            }(api));
        }
        run();
    }
};

class LaterAnswer : public TwoAnswers, public testing::WithParamInterface<HttpResponse> {};

TEST_P(LaterAnswer, ThatFailsLeavesTheStatesOfTheEarlierOne)
{
    transport.answer(HttpResponse{.status = 200, .body = theStates});
    transport.answer(GetParam());
    run();
    EXPECT_EQ(result(api.fetchIncidentStates()).size(), 3u);
    EXPECT_EQ(transport.requests.size(), 2u);
}

INSTANTIATE_TEST_SUITE_P(InEitherWay, LaterAnswer,
    testing::Values(HttpResponse{.status = 500, .body = ""}, HttpResponse{.status = 200, .body = "<html>"}));

TEST_F(TwoAnswers, OfWhichBothAreGoodTheLaterWins)
{
    transport.answer(HttpResponse{.status = 200, .body = theStates});
    transport.answer(HttpResponse{
        .status = 200, .body = R"({"incident_states": [{"id": 9, "stage": "Resolved", "sort_order": 1}]})"});
    run();
    const auto states = result(api.fetchIncidentStates());
    ASSERT_EQ(states.size(), 1u);
    EXPECT_EQ(states[0].id, 9);
    EXPECT_EQ(transport.requests.size(), 2u);
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

}  // namespace

}  // namespace larkspan::api
