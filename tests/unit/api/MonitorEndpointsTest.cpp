#include "api/MonitorEndpoints.h"

#include "api/Endpoint.h"
#include "model/ComponentMonitor.h"

namespace larkspan::api {

namespace {

using fakes::Service;

class MonitorEndpoint : public Endpoint {};

TEST_P(MonitorEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, MonitorEndpoint,
    testing::Values(EndpointRow{"fetchComponentMonitors",
        [](Service& s) {
            return resultOf(s, s.api.fetchComponentMonitors({"a", "b c"}));
        },
        R"({"monitors": [{"id": 2, "name": "B", "component_id": "a"}, {"id": "1", "name": "A", "component_id": "b c"}]})",
        "GET", feature + "/monitors?component_ids=a,b%20c", "none", "2 1"}),
    [](const auto& row) { return row.param.name; });

class Monitors : public testing::Test, public Service {};

TEST_F(Monitors, OfNoComponentsAreAnEmptyListAndNoRequest)
{
    EXPECT_TRUE(result(api.fetchComponentMonitors({})).empty());
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Monitors, OfComponentsUnderDataAreADecodingError)
{
    transport.script(feature + "/monitors?component_ids=a", 200, R"({"data": {"monitors": []}})");
    EXPECT_EQ(failure(api.fetchComponentMonitors({"a"})), "monitors: The key is missing");
}

TEST_F(Monitors, OfComponentsInAnEmptyBodyAreADecodingError)
{
    transport.script(feature + "/monitors?component_ids=a", 200, "");
    EXPECT_EQ(failure(api.fetchComponentMonitors({"a"})), "The server’s answer: Not valid JSON");
}

}  // namespace

}  // namespace larkspan::api
