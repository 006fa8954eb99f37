#include "api/MonitorEndpoints.h"

#include "api/Endpoint.h"
#include "model/records/ComponentMonitor.h"
#include "model/records/Monitor.h"
#include "model/records/MonitorMetricsWindow.h"
#include "model/records/MonitorWithMetrics.h"

namespace larkspan::api {

namespace {

using fakes::ScriptedService;

class MonitorEndpoint : public Endpoint {};

TEST_P(MonitorEndpoint, SendsItsMethodToItsURLWithItsBodyAndGivesItsResult)
{
    expectRequestAndResult();
}

TEST_P(MonitorEndpoint, IsOneWayToTheClientAndOneBack)
{
    expectOneWayThereAndOneBack();
}

/// The ids of the monitors that have a window.
std::string monitorsIn(const MonitorEndpoints::MetricsWindows& windows)
{
    std::string ids;
    for (const auto& [id, window] : windows) ids += (ids.empty() ? "" : " ") + id;
    return ids;
}

INSTANTIATE_TEST_SUITE_P(EachOperation, MonitorEndpoint,
    testing::Values(
        EndpointRow{"fetchMonitors", [](ScriptedService& s) { return resultOf(s, s.api.fetchMonitors()); },
            R"([{"id": "b", "name": "B"}, {"id": 1, "name": "A"}])", "GET", v1 + "/monitors", "none", "b 1"},
        EndpointRow{"fetchMonitorsOfNull", [](ScriptedService& s) { return resultOf(s, s.api.fetchMonitors()); },
            R"({"data": null})", "GET", v1 + "/monitors", "none", ""},
        EndpointRow{"runMonitor", [](ScriptedService& s) { return resultOf(s, s.api.runMonitor("7")); }, "{}", "POST",
            feature + "/monitors/7/run", "none", "nothing"},
        EndpointRow{"pauseMonitor", [](ScriptedService& s) { return resultOf(s, s.api.pauseMonitor("7")); }, "{}",
            "POST", feature + "/monitors/7/pause", "none", "nothing"},
        EndpointRow{"resumeMonitor", [](ScriptedService& s) { return resultOf(s, s.api.resumeMonitor("7")); }, "",
            "POST", feature + "/monitors/7/resume", "none", "nothing"},
        EndpointRow{"fetchMonitorMetrics",
            [](ScriptedService& s) { return monitorsIn(s.result(s.api.fetchMonitorMetrics({"a", "b"}, "24h"))); },
            R"({"data": {"metrics": {"a": {}, "b": {}}}})", "GET", feature + "/monitors/metrics?ids=a,b&range=24h",
            "none", "a b"},
        EndpointRow{"fetchMonitorMetricsOfNoMonitor",
            [](ScriptedService& s) { return monitorsIn(s.result(s.api.fetchMonitorMetrics({}, "24h"))); },
            R"({"metrics": {}})", "GET", feature + "/monitors/metrics?ids=&range=24h", "none", ""},
        EndpointRow{"fetchMonitorMetricsOutsideTheQuerySet",
            [](ScriptedService& s) { return monitorsIn(s.result(s.api.fetchMonitorMetrics({"a b", "#"}, "1 h"))); },
            R"({"metrics": {}})", "GET", feature + "/monitors/metrics?ids=a%20b,%23&range=1%20h", "none", ""},
        EndpointRow{"fetchMonitorsWithMetrics",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchMonitorsWithMetrics({"a", "b c"})); },
            R"([{"id": "m", "name": "M", "metrics": {}}])", "GET", feature + "/monitors?component_ids=a,b%20c", "none",
            "m"},
        EndpointRow{"fetchMonitorsWithMetricsOfNoComponent",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchMonitorsWithMetrics({})); }, "[]", "GET",
            feature + "/monitors?component_ids=", "none", ""},
        EndpointRow{"fetchComponentMonitors",
            [](ScriptedService& s) { return resultOf(s, s.api.fetchComponentMonitors({"a", "b c"})); },
            R"({"monitors": [{"id": 2, "name": "B", "component_id": "a"},
                {"id": "1", "name": "A", "component_id": "b c"}]})",
            "GET", feature + "/monitors?component_ids=a,b%20c", "none", "2 1"}),
    [](const auto& row) { return row.param.name; });

class Monitors : public testing::Test, public ScriptedService {};

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

TEST_F(Monitors, ARunAnsweredBy202WithAnEmptyBodySucceeds)
{
    transport.script(feature + "/monitors/7/run", 202, "");
    EXPECT_EQ(failure(api.runMonitor("7")), "no failure");
}

TEST_F(Monitors, OfAnEmptyBodyAreNoValidResponse)
{
    transport.script(v1 + "/monitors", 200, "");
    EXPECT_EQ(failure(api.fetchMonitors()), "Received an invalid response from the server.");
}

TEST_F(Monitors, WhoseIdsAreNoTextAreAskedForRawAndGiveNoURL)
{
    EXPECT_EQ(failure(api.fetchMonitorMetrics({"\xff"}, "24h")), "Could not build a valid API URL.");
    EXPECT_EQ(failure(api.fetchComponentMonitors({"\xff"})), "Could not build a valid API URL.");
    EXPECT_TRUE(transport.requests.empty());
}

}  // namespace

}  // namespace larkspan::api
