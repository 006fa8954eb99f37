#include "api/ComponentEndpoints.h"

#include "api/Endpoint.h"
#include "model/ComponentGroup.h"

namespace larkspan::api {

namespace {

using fakes::Service;

class ComponentEndpoint : public Endpoint {};

TEST_P(ComponentEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, ComponentEndpoint,
    testing::Values(EndpointRow{"fetchComponents", [](Service& s) { return resultOf(s, s.api.fetchComponents("p")); },
                        R"({"data": [{"id": "b", "name": "B"}, {"id": 1, "name": "A"}]})", "GET",
                        feature + "/components?status_page_id=p", "none", "b 1"},
        EndpointRow{"fetchComponentsInTheirOwnEnvelope",
            [](Service& s) { return resultOf(s, s.api.fetchComponents("p")); },
            R"({"components": [{"id": 1, "name": "A"}]})", "GET", feature + "/components?status_page_id=p", "none",
            "1"},
        EndpointRow{"fetchBareComponents", [](Service& s) { return resultOf(s, s.api.fetchComponents("p")); },
            R"([{"id": 1, "name": "A"}])", "GET", feature + "/components?status_page_id=p", "none", "1"},
        EndpointRow{"fetchComponentsOfTheAccount", [](Service& s) { return resultOf(s, s.api.fetchComponents()); },
            "[]", "GET", feature + "/components", "none", ""},
        EndpointRow{"fetchComponentsOfAnEmptyId", [](Service& s) { return resultOf(s, s.api.fetchComponents("")); },
            "[]", "GET", feature + "/components?status_page_id=", "none", ""},
        EndpointRow{"fetchComponentsOfAnIdOutsideTheQuerySet",
            [](Service& s) { return resultOf(s, s.api.fetchComponents("a #")); }, "[]", "GET",
            feature + "/components?status_page_id=a%20%23", "none", ""},
        EndpointRow{"fetchComponentGroups", [](Service& s) { return resultOf(s, s.api.fetchComponentGroups("p #")); },
            R"({"data": [{"id": "b", "name": "B"}, {"id": "1", "name": "A"}]})", "GET",
            feature + "/component-groups?status_page_id=p%20%23", "none", "b 1"},
        EndpointRow{"fetchComponentGroupsInTheirOwnEnvelope",
            [](Service& s) { return resultOf(s, s.api.fetchComponentGroups("p")); },
            R"({"component_groups": [{"id": "1", "name": "A"}]})", "GET",
            feature + "/component-groups?status_page_id=p", "none", "1"},
        EndpointRow{"fetchBareComponentGroups", [](Service& s) { return resultOf(s, s.api.fetchComponentGroups("p")); },
            R"([{"id": "1", "name": "A"}])", "GET", feature + "/component-groups?status_page_id=p", "none", "1"}),
    [](const auto& row) { return row.param.name; });

class Components : public testing::Test, public Service {
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

}  // namespace

}  // namespace larkspan::api
