#include "api/StatusPageEndpoints.h"

#include "api/Endpoint.h"
#include "model/bodies/UpdateStatusPageRequest.h"
#include "model/records/StatusPage.h"
#include "model/records/StatusPageAnalytics.h"

namespace larkspan::api {

namespace {

using fakes::ScriptedService;

class StatusPageEndpoint : public Endpoint {};

TEST_P(StatusPageEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

TEST_P(StatusPageEndpoint, IsOneWayToTheClientAndOneBack)
{
    expectOneWayThereAndOneBack();
}

INSTANTIATE_TEST_SUITE_P(EachOperation, StatusPageEndpoint,
    testing::Values(EndpointRow{"updateStatusPage",
                        [](ScriptedService& s) {
                            return resultOf(s, s.api.updateStatusPage("p", {.title = "T", .description = "D"}));
                        },
                        R"({"data": {"id": "p", "name": "T"}})", "PATCH", v1 + "/status-pages/p",
                        R"({"title":"T","description":"D"})", "p"},
        EndpointRow{"updateStatusPageOfNothing",
            [](ScriptedService& s) { return resultOf(s, s.api.updateStatusPage("p", {})); },
            R"({"id": "p", "name": "T"})", "PATCH", v1 + "/status-pages/p", "{}", "p"},
        EndpointRow{"fetchStatusPageViews",
            [](ScriptedService& s) { return std::to_string(s.result(s.api.fetchStatusPageViews("p")).viewCount); },
            R"({"data": {"period": "30d", "view_count": 12}})", "GET", feature + "/analytics/status-pages/p/views",
            "none", "12"},
        EndpointRow{"fetchSubscriberCount",
            [](ScriptedService& s) { return std::to_string(s.result(s.api.fetchSubscriberCount("p")).count); },
            R"({"count": 3})", "GET", v1 + "/status-pages/p/subscribers/count", "none", "3"}),
    [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace larkspan::api
