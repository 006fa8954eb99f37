#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"
#include "server/Control.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

class EventOrders : public ServedAccount {
protected:
    Reply order(const std::string& method, const std::string& path, const std::string& body)
    {
        return control_.answer(samples::requestWithBody("/simulator/" + path, method, body));
    }

    Incident incident(const std::string& id)
    {
        Incident found;
        service_.withAccount([&](Account& account) { found = *account.findIncident(id); });
        return found;
    }

    /// The status of the only maintenance from the service.
    std::string maintenanceStatus()
    {
        const auto reply = service_.answer(samples::request("/user/api/v1/maintenances"));
        return parsedJson(reply.body).at("data").at(0).at("status").get<std::string>();
    }

    Identity authority_ = makeAuthority("Test");
    ServerCertificates certificates_{authority_, CertificateKind::valid};
    Control control_{service_, certificates_};
};

TEST_F(EventOrders, OpenAMajorIncidentUnlessToldOtherwise)
{
    const auto reply = order("POST", "incidents", "{'title':'Down','page':'page-1'}");

    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(reply.body, R"({"id":"incident-1"})");
    EXPECT_EQ(incident("incident-1").severityName, "major");
    EXPECT_FALSE(incident("incident-1").acknowledgedAt);
    EXPECT_EQ(pageStatus(), "down");
}

TEST_F(EventOrders, OpenAnIncidentInAnyStatus)
{
    order("POST", "incidents", "{'title':'a','message':'m','severity':'minor','status':'acknowledged'}");
    order("POST", "incidents", "{'title':'b','status':'resolved'}");

    EXPECT_EQ(incident("incident-1").message, "m");
    EXPECT_EQ(incident("incident-1").acknowledgedAt, clock_.time);
    EXPECT_TRUE(incident("incident-1").isOpen());
    EXPECT_FALSE(incident("incident-2").isOpen());
}

TEST_F(EventOrders, AcknowledgeResolveAndReopenAnIncident)
{
    order("POST", "incidents", "{'title':'a','page':'page-1'}");

    EXPECT_EQ(order("PATCH", "incidents/incident-1", "{'status':'acknowledged','message':'Seen.'}").status, 204);
    EXPECT_EQ(incident("incident-1").acknowledgedAt, clock_.time);
    EXPECT_EQ(incident("incident-1").message, "Seen.");

    EXPECT_EQ(order("PATCH", "incidents/incident-1", "{'status':'resolved'}").status, 204);
    EXPECT_EQ(incident("incident-1").endedAt, clock_.time);
    EXPECT_EQ(pageStatus(), "operational");

    EXPECT_EQ(order("PATCH", "incidents/incident-1", "{'status':'active'}").status, 204);
    EXPECT_FALSE(incident("incident-1").acknowledgedAt);
    EXPECT_EQ(pageStatus(), "down");
}

TEST_F(EventOrders, ReplaceTheStagesOfIncidents)
{
    EXPECT_EQ(order("PUT", "incident-states", "{'stages':['Open','Closed']}").status, 204);

    service_.setShape(ResultShape::bare);
    EXPECT_EQ(service_.answer(samples::request("/user/api/incident-states")).body,
        R"({"incident_states":[{"id":1,"stage":"Open","sort_order":1},{"id":2,"stage":"Closed","sort_order":2}]})");
}

TEST_F(EventOrders, PlanStartAndCompleteAMaintenance)
{
    const auto reply = order("POST", "maintenances", "{'title':'Upgrade','page':'page-1'}");
    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(reply.body, R"({"id":"1"})");
    EXPECT_EQ(maintenanceStatus(), "scheduled");

    EXPECT_EQ(order("PATCH", "maintenances/1", "{'status':'in_progress'}").status, 204);
    EXPECT_EQ(maintenanceStatus(), "in_progress");
    EXPECT_EQ(pageStatus(), "maintenance");

    clock_.time += 1min;
    EXPECT_EQ(order("PATCH", "maintenances/1", "{'status':'completed'}").status, 204);
    EXPECT_EQ(maintenanceStatus(), "completed");
    EXPECT_EQ(pageStatus(), "operational");
}

struct BadEventRow {
    std::string method;
    std::string path;
    std::string body;
    std::string error;
};

class BadEventOrders : public EventOrders, public testing::WithParamInterface<BadEventRow> {};

TEST_P(BadEventOrders, AreAnsweredWithWhatIsWrongAndChangeNothing)
{
    const auto reply = order(GetParam().method, GetParam().path, GetParam().body);

    EXPECT_EQ(reply.status, 400);
    EXPECT_EQ(parsedJson(reply.body), Json::object({{"error", GetParam().error}}));
    service_.withAccount([](Account& account) {
        EXPECT_TRUE(account.incidents.empty());
        EXPECT_TRUE(account.maintenances.empty());
        EXPECT_EQ(account.incidentStates.size(), 4u);
    });
}

INSTANTIATE_TEST_SUITE_P(EachMistake, BadEventOrders,
    testing::Values(BadEventRow{"POST", "incidents", "{}", R"("title" is missing.)"},
        BadEventRow{"POST", "incidents", "{'title':'t','page':'x'}", "There is no such page."},
        BadEventRow{"POST", "incidents", "{'title':'t','status':'odd'}", R"(No incident is "odd".)"},
        BadEventRow{"PATCH", "incidents/x", "{'status':'resolved'}", "There is no such incident."},
        BadEventRow{"PUT", "incident-states", "{'stages':[]}", "An account has at least one stage."},
        BadEventRow{"PUT", "incident-states", "{'stages':'Open'}", R"("stages" is no list.)"},
        BadEventRow{"PUT", "incident-states", "{'stages':[1]}", R"("stages" holds something that is no text.)"},
        BadEventRow{"POST", "maintenances", "{'title':'t'}", R"("page" is missing.)"},
        BadEventRow{
            "POST", "maintenances", "{'title':'t','page':'page-1','status':'odd'}", R"(No maintenance is "odd".)"},
        BadEventRow{"PATCH", "maintenances/x", "{'status':'completed'}", "There is no such maintenance."}));

}  // namespace
}  // namespace larkspan::simulator
