#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"
#include "account/IncidentWorkflow.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

const std::string featurePath = "/user/api/incidents";
const std::string incidentsPath = "/user/api/v1/incidents";
const std::string path = incidentsPath + "/incident-1";

/// An account with one open incident, "incident-1", of the page "page-1".
class IncidentEndpoints : public ServedAccount {
protected:
    IncidentEndpoints()
    {
        service_.setShape(ResultShape::bare);
        service_.withAccount([this](Account& account) {
            Incident draft;
            draft.title = "Slow";
            draft.message = "Looking.";
            draft.statusPageId = "page-1";
            openIncident(account, draft, clock_.time);
        });
        clock_.time += 5min;
    }

    std::string now(const char* key) { return field(send("GET", path), key); }
};

TEST_F(IncidentEndpoints, FetchOne)
{
    const auto reply = send("GET", path);

    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body,
        R"({"id":"incident-1","title":"Slow","message":"Looking.","created_at":"2026-11-20T09:00:00Z",)"
        R"("updated_at":"2026-11-20T09:00:00Z","status_page_id":"page-1","severity_name":"minor",)"
        R"("incident_state_id":"1","incident_state":"Investigating"})");
}

TEST_F(IncidentEndpoints, CreatePutsTheNewOneFirstAndDegradesItsPage)
{
    const auto reply = send("POST", incidentsPath,
        "{'title':'Down','message':'m','status_page_id':'page-2','component_id':'c','monitor_id':'x',"
        "'notify_subscribers':true}");

    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(field(reply, "id"), "incident-2");
    EXPECT_EQ(field(reply, "created_at"), "2026-11-20T09:05:00Z");
    EXPECT_EQ(field(reply, "component_id"), "c");
    EXPECT_EQ(parsedJson(send("GET", incidentsPath).body).at(0), parsedJson(reply.body));
    service_.withAccount([](Account& account) { EXPECT_EQ(account.findPage("page-2")->status, "degraded"); });
}

TEST_F(IncidentEndpoints, CreateOfTheWholeAccountNeedsNoPage)
{
    const auto reply = send("POST", incidentsPath, "{'title':'Down','notify_subscribers':false}");

    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(field(reply, "status_page_id"), "(none)");
}

TEST_F(IncidentEndpoints, AnUpdateIsAddedToTheMessageAndLeavesTheState)
{
    const auto reply = send("PATCH", path, "{'message':'Found.','append_update':true}");

    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(field(reply, "message"), "Looking.\n\nFound.");
    EXPECT_EQ(field(reply, "updated_at"), "2026-11-20T09:05:00Z");
    EXPECT_EQ(field(reply, "incident_state_id"), "1");
}

TEST_F(IncidentEndpoints, AMessageThatIsNotAppendedReplacesTheOneBefore)
{
    EXPECT_EQ(field(send("PATCH", path, "{'message':'Found.','append_update':false}"), "message"), "Found.");
}

TEST_F(IncidentEndpoints, TheLastStateResolvesAndThePageRecovers)
{
    EXPECT_EQ(pageStatus(), "degraded");

    const auto reply = send("PATCH", path, "{'incident_state_id':'4','append_update':true}");

    EXPECT_EQ(field(reply, "incident_state"), "Resolved");
    EXPECT_EQ(field(reply, "ended_at"), "2026-11-20T09:05:00Z");
    EXPECT_EQ(field(reply, "message"), "Looking.");
    EXPECT_EQ(pageStatus(), "operational");
}

TEST_F(IncidentEndpoints, AnEarlierStateOpensAgain)
{
    send("PATCH", path, "{'incident_state_id':'4','append_update':true}");

    const auto reply = send("PATCH", path, "{'message':'Back.','incident_state_id':'2','append_update':true}");

    EXPECT_EQ(field(reply, "incident_state"), "Identified");
    EXPECT_EQ(field(reply, "ended_at"), "(none)");
    EXPECT_EQ(pageStatus(), "degraded");
}

TEST_F(IncidentEndpoints, AcknowledgeTakesTheFirstTime)
{
    const auto reply = send("POST", featurePath + "/incident-1/acknowledge");
    clock_.time += 1min;
    send("POST", featurePath + "/incident-1/acknowledge");

    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, R"({"success":true})");
    EXPECT_EQ(now("acknowledged_at"), "2026-11-20T09:05:00Z");
    EXPECT_EQ(pageStatus(), "degraded");
}

TEST_F(IncidentEndpoints, AcknowledgeOfAResolvedOneIsRefused)
{
    send("PATCH", path, "{'incident_state_id':'4','append_update':true}");

    EXPECT_EQ(send("POST", featurePath + "/incident-1/acknowledge").status, 422);
    EXPECT_EQ(now("acknowledged_at"), "(none)");
}

TEST_F(IncidentEndpoints, EscalateRaisesTheSeverityAndThePageGoesDown)
{
    EXPECT_EQ(send("POST", featurePath + "/incident-1/escalate").status, 200);
    EXPECT_EQ(now("severity_name"), "major");
    EXPECT_EQ(pageStatus(), "down");

    send("POST", featurePath + "/incident-1/escalate");
    send("POST", featurePath + "/incident-1/escalate");
    EXPECT_EQ(now("severity_name"), "critical");
}

TEST_F(IncidentEndpoints, DeleteAnswersNothingAndThePageRecovers)
{
    const auto reply = send("DELETE", path);

    EXPECT_EQ(reply.status, 204);
    EXPECT_EQ(reply.body, "");
    EXPECT_EQ(send("GET", path).status, 404);
    EXPECT_EQ(pageStatus(), "operational");
}

TEST_F(IncidentEndpoints, AnAccountsOwnLastStateResolves)
{
    service_.withAccount([](Account& account) { account.incidentStates = {{8, "Closed", 20}, {7, "Open", 10}}; });

    EXPECT_EQ(field(send("PATCH", path, "{'incident_state_id':'8','append_update':true}"), "ended_at"),
        "2026-11-20T09:05:00Z");
}

TEST_F(IncidentEndpoints, RecordsComeUnderDataToo)
{
    const auto bare = parsedJson(send("GET", path).body);
    service_.setShape(ResultShape::underData);

    EXPECT_EQ(parsedJson(send("GET", path).body), Json::object({{"data", bare}}));
}

class RefusedOfIncidents : public IncidentEndpoints, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOfIncidents, IsAnsweredWithWhatIsWrongAndChangesNothing)
{
    expectRefusal(GetParam(), incidentsPath);
}

INSTANTIATE_TEST_SUITE_P(UnknownIds, RefusedOfIncidents,
    testing::Values(RefusalRow{"Fetch", "GET", incidentsPath + "/x", "", 404, "Not found"},
        RefusalRow{"Update", "PATCH", incidentsPath + "/x", "{}", 404, "Not found"},
        RefusalRow{"Delete", "DELETE", incidentsPath + "/x", "", 404, "Not found"},
        RefusalRow{"Acknowledge", "POST", featurePath + "/x/acknowledge", "", 404, "Not found"},
        RefusalRow{"Escalate", "POST", featurePath + "/x/escalate", "", 404, "Not found"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(TheOtherBase, RefusedOfIncidents,
    testing::Values(RefusalRow{"Create", "POST", featurePath, "{}", 404, "Not found"},
        RefusalRow{"Fetch", "GET", featurePath + "/incident-1", "", 404, "Not found"},
        RefusalRow{"Update", "PATCH", featurePath + "/incident-1", "{}", 404, "Not found"},
        RefusalRow{"Delete", "DELETE", featurePath + "/incident-1", "", 404, "Not found"},
        RefusalRow{"Acknowledge", "POST", path + "/acknowledge", "", 404, "Not found"},
        RefusalRow{"Escalate", "POST", path + "/escalate", "", 404, "Not found"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(BadBodies, RefusedOfIncidents,
    testing::Values(RefusalRow{"NoJson", "POST", incidentsPath, "title", 422, "The body is no JSON."},
        RefusalRow{"NoObject", "POST", incidentsPath, "[]", 422, "The body is no object."},
        RefusalRow{"NoTitle", "POST", incidentsPath, "{'notify_subscribers':true}", 422, R"("title" is missing.)"},
        RefusalRow{"NullTitle", "POST", incidentsPath, "{'title':null}", 422, R"("title" is missing.)"},
        RefusalRow{"BlankTitle", "POST", incidentsPath, "{'title':'  '}", 422, R"("title" is empty.)"},
        RefusalRow{"NumberAsTitle", "POST", incidentsPath, "{'title':1}", 422, R"("title" is no text.)"},
        RefusalRow{"NoNotify", "POST", incidentsPath, "{'title':'t'}", 422, R"("notify_subscribers" is missing.)"},
        RefusalRow{"UnknownPage", "POST", incidentsPath, "{'title':'t','notify_subscribers':true,'status_page_id':'x'}",
            422, "There is no such status page."},
        RefusalRow{"NothingToChange", "PATCH", path, "{'append_update':true}", 422, "There is nothing to change."},
        RefusalRow{"NoAppend", "PATCH", path, "{'message':'m'}", 422, R"("append_update" is missing.)"},
        RefusalRow{"TextAsAppend", "PATCH", path, "{'message':'m','append_update':'yes'}", 422,
            R"("append_update" is neither true nor false.)"},
        RefusalRow{"UnknownState", "PATCH", path, "{'message':'m','incident_state_id':'9','append_update':true}", 422,
            "There is no such incident state."},
        RefusalRow{"NumberAsState", "PATCH", path, "{'incident_state_id':4,'append_update':true}", 422,
            R"("incident_state_id" is no text.)"}),
    nameOf);

}  // namespace
}  // namespace larkspan::simulator
