#include "api/ComponentEndpoints.h"

#include "api/Endpoint.h"
#include "model/bodies/ComponentRequests.h"
#include "model/records/ComponentGroup.h"

namespace larkspan::api {

namespace {

using fakes::ScriptedService;

const std::string aComponent = R"({"data": {"id": 7, "name": "API"}})";
const std::string aGroup = R"({"data": {"id": "g", "name": "Backend"}})";

class ComponentEndpoint : public Endpoint {};

TEST_P(ComponentEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

TEST_P(ComponentEndpoint, IsOneWayToTheClientAndOneBack)
{
    expectOneWayThereAndOneBack();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, ComponentEndpoint,
    testing::Values(
        EndpointRow{"fetchComponents", [](ScriptedService& s) { return resultOf(s, s.api.fetchComponents("p")); },
            R"({"data": [{"id": "b", "name": "B"}, {"id": 1, "name": "A"}]})", "GET",
            feature + "/components?status_page_id=p", "none", "b 1"},
        EndpointRow{"fetchComponentsInTheirOwnEnvelope",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponents("p")); },
            R"({"components": [{"id": 1, "name": "A"}]})", "GET", feature + "/components?status_page_id=p", "none",
            "1"},
        EndpointRow{"fetchBareComponents", [](ScriptedService& s) { return resultOf(s, s.api.fetchComponents("p")); },
            R"([{"id": 1, "name": "A"}])", "GET", feature + "/components?status_page_id=p", "none", "1"},
        EndpointRow{"fetchComponentsOfTheAccount",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponents()); }, "[]", "GET",
            feature + "/components", "none", ""},
        EndpointRow{"fetchComponentsOfAnEmptyId",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponents("")); }, "[]", "GET",
            feature + "/components?status_page_id=", "none", ""},
        EndpointRow{"fetchComponentsOfAnIdOutsideTheQuerySet",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponents("a #")); }, "[]", "GET",
            feature + "/components?status_page_id=a%20%23", "none", ""},
        EndpointRow{"fetchComponentGroups",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponentGroups("p #")); },
            R"({"data": [{"id": "b", "name": "B"}, {"id": "1", "name": "A"}]})", "GET",
            feature + "/component-groups?status_page_id=p%20%23", "none", "b 1"},
        EndpointRow{"fetchComponentGroupsInTheirOwnEnvelope",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponentGroups("p")); },
            R"({"component_groups": [{"id": "1", "name": "A"}]})", "GET",
            feature + "/component-groups?status_page_id=p", "none", "1"},
        EndpointRow{"fetchBareComponentGroups",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponentGroups("p")); },
            R"([{"id": "1", "name": "A"}])", "GET", feature + "/component-groups?status_page_id=p", "none", "1"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(EachChange, ComponentEndpoint,
    testing::Values(
        EndpointRow{"createComponent",
            [](ScriptedService& s) {
                return resultOf(s, s.api.createComponent({.name = "N", .description = "D", .groupId = "g"}));
            },
            aComponent, "POST", feature + "/components", R"({"name":"N","description":"D","group_id":"g"})", "7"},
        EndpointRow{"createComponentOfANameAlone",
            [](ScriptedService& s) { return resultOf(s, s.api.createComponent({.name = "N"})); }, aComponent, "POST",
            feature + "/components", R"({"name":"N"})", "7"},
        EndpointRow{"updateComponent",
            [](ScriptedService& s) {
                return resultOf(
                    s, s.api.updateComponent("7", {.name = "N", .description = "D", .status = "up", .groupId = "g"}));
            },
            aComponent, "PUT", feature + "/components/7",
            R"({"name":"N","description":"D","status":"up","group_id":"g"})", "7"},
        EndpointRow{"updateComponentOfNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.updateComponent("7", {})); }, aComponent, "PUT",
            feature + "/components/7", "{}", "7"},
        EndpointRow{"deleteComponent", [](ScriptedService& s) { return resultOf(s, s.api.deleteComponent("7")); }, "",
            "DELETE", feature + "/components/7", "none", "nothing"},
        EndpointRow{"createComponentGroup",
            [](ScriptedService& s) { return resultOf(s, s.api.createComponentGroup("p", "A \"B\"")); }, aGroup, "POST",
            feature + "/component-groups", R"({"name":"A \"B\"","status_page_id":"p"})", "g"},
        EndpointRow{"updateComponentGroup",
            [](ScriptedService& s) { return resultOf(s, s.api.updateComponentGroup("g", "N")); }, aGroup, "PUT",
            feature + "/component-groups/g", R"({"name":"N"})", "g"},
        EndpointRow{"updateComponentGroupOfNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.updateComponentGroup("g", {})); }, aGroup, "PUT",
            feature + "/component-groups/g", "{}", "g"},
        EndpointRow{"deleteComponentGroup",
            [](ScriptedService& s) { return resultOf(s, s.api.deleteComponentGroup("g")); }, "{}", "DELETE",
            feature + "/component-groups/g", "none", "nothing"}),
    [](const auto& row) { return row.param.name; });

class Components : public testing::Test, public ScriptedService {
protected:
    std::string failureWhenAnswered(int status, const std::string& body)
    {
        transport.script(feature + "/components?status_page_id=p", status, body);
        return failure(api.fetchComponents("p"));
    }
};

TEST_F(Components, OfAnEmptyBodyAreADecodingErrorAndNoInvalidResponse)
{
    EXPECT_EQ(failureWhenAnswered(200, ""), "The server’s answer: Not valid JSON");
}

TEST_F(Components, OfDataNullAreADecodingError)
{
    EXPECT_EQ(
        failureWhenAnswered(200, R"({"data": null})"), "The server’s answer: Expected a list but found an object");
}

TEST_F(Components, WithoutAnyShapeThatReadsFailWithTheErrorOfTheBareOne)
{
    EXPECT_EQ(failureWhenAnswered(200, R"([{"id": 1}])"), "[0].name: The key is missing");
}

TEST_F(Components, FailWithTheStatusOfTheAnswer)
{
    for (const int status : {400, 401, 403, 404}) {
        EXPECT_EQ(
            failureWhenAnswered(status, "[]"), "Server returned HTTP status code " + std::to_string(status) + ".");
    }
}

TEST_F(Components, AGroupWhoseNameIsNoTextIsNotSent)
{
    EXPECT_EQ(
        failure(api.createComponentGroup("p", "\xff")), "The request could not be written: name is not valid text.");
    EXPECT_TRUE(transport.requests.empty());
}

}  // namespace

}  // namespace larkspan::api
