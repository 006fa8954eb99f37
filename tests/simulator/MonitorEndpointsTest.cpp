#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ServedAccount.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

const std::string featurePath = "/user/api/monitors";
const std::string monitorsPath = "/user/api/v1/monitors";

/// An account with a monitor "7" that runs under the component "1", and a paused monitor "m" under none.
class MonitorEndpoints : public ServedAccount {
protected:
    MonitorEndpoints()
    {
        service_.setShape(ResultShape::bare);
        service_.withAccount([this](Account& account) {
            Monitor running;
            running.id = "7";
            running.name = "Health";
            running.type = "http";
            running.target = "https://a.example";
            running.enabled = true;
            running.createdAt = clock_.time - 24h;
            running.intervalSeconds = 60;
            running.statusPageId = "page-1";
            running.componentId = "1";
            Monitor paused;
            paused.id = "m";
            paused.name = "Mail";
            paused.enabled = false;
            paused.state = "up";
            account.monitors = {running, paused};
        });
    }

    std::string keysOfMetrics(const std::string& query)
    {
        const auto answer = parsedJson(send("GET", featurePath + "/metrics?" + query).body);
        std::string keys;
        for (const auto& [key, window] : answer.at("metrics").items()) keys += key + ' ';
        return keys;
    }
};

TEST_F(MonitorEndpoints, ListsThoseOfTheAccount)
{
    EXPECT_EQ(send("GET", monitorsPath).body,
        R"([{"id":7,"name":"Health","type":"http","target":"https://a.example","enabled":true,)"
        R"("created_at":"2026-11-19T09:00:00Z","interval_seconds":60,"status_page_id":"page-1","component_id":"1"},)"
        R"({"id":"m","name":"Mail","enabled":false,"state":"up"}])");
}

TEST_F(MonitorEndpoints, PauseAndResumeTurnEachOtherBackAndTellTheTime)
{
    clock_.time += 1min;
    EXPECT_EQ(send("POST", featurePath + "/7/pause").body, R"({"success":true})");
    service_.withAccount([this](Account& account) {
        EXPECT_TRUE(account.findMonitor("7")->isPaused());
        EXPECT_EQ(account.findMonitor("7")->updatedAt, clock_.time);
    });

    EXPECT_EQ(send("POST", featurePath + "/7/resume").status, 200);
    service_.withAccount([](Account& account) { EXPECT_FALSE(account.findMonitor("7")->isPaused()); });
}

TEST_F(MonitorEndpoints, ARunIsTakenWithNothingInTheAnswerAndGivesAStateToOneThatHadNone)
{
    const auto reply = send("POST", featurePath + "/7/run");

    EXPECT_EQ(reply.status, 202);
    EXPECT_EQ(reply.body, "");
    service_.withAccount([](Account& account) { EXPECT_EQ(account.findMonitor("7")->state, "up"); });
}

TEST_F(MonitorEndpoints, ARunLeavesAStateThatIsKnown)
{
    service_.withAccount([](Account& account) { account.findMonitor("7")->state = "down"; });
    send("POST", featurePath + "/7/run");

    service_.withAccount([](Account& account) { EXPECT_EQ(account.findMonitor("7")->state, "down"); });
}

TEST_F(MonitorEndpoints, MetricsAreThoseOfTheMonitorsThatThereAre)
{
    EXPECT_EQ(keysOfMetrics("ids=7,x,m&range=24h"), "7 m ");
    EXPECT_EQ(keysOfMetrics("ids=m&range=1h"), "m ");
    EXPECT_EQ(keysOfMetrics("ids=&range=30d"), "");
}

TEST_F(MonitorEndpoints, UnderComponentsAreWrappedInNoShape)
{
    service_.setShape(ResultShape::underData);

    const auto answer = parsedJson(send("GET", featurePath + "?component_ids=1,2").body);
    ASSERT_EQ(answer.at("monitors").size(), 1u);
    EXPECT_EQ(answer.at("monitors").at(0).at("component_id"), Json("1"));
}

TEST_F(MonitorEndpoints, UnderNoComponentAreNone)
{
    EXPECT_EQ(send("GET", featurePath + "?component_ids=").body, R"({"monitors":[],"data":[]})");
    EXPECT_EQ(send("GET", featurePath).body, R"({"monitors":[],"data":[]})");
}

class RefusedOfMonitors : public MonitorEndpoints, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedOfMonitors, IsAnsweredWithWhatIsWrongAndChangesNothing)
{
    expectRefusal(GetParam(), monitorsPath);
}

INSTANTIATE_TEST_SUITE_P(Each, RefusedOfMonitors,
    testing::Values(RefusalRow{"Run", "POST", featurePath + "/x/run", "", 404, "Not found"},
        RefusalRow{"Pause", "POST", featurePath + "/x/pause", "", 404, "Not found"},
        RefusalRow{"Resume", "POST", featurePath + "/x/resume", "", 404, "Not found"},
        RefusalRow{"RunUnderTheOtherBase", "POST", monitorsPath + "/7/run", "", 404, "Not found"},
        RefusalRow{"PauseUnderTheOtherBase", "POST", monitorsPath + "/7/pause", "", 404, "Not found"},
        RefusalRow{"MetricsUnderTheOtherBase", "GET", monitorsPath + "/metrics", "", 404, "Not found"},
        RefusalRow{"RunOfAPausedOne", "POST", featurePath + "/m/run", "", 409, "The monitor is paused."},
        RefusalRow{"PauseOfAPausedOne", "POST", featurePath + "/m/pause", "", 409, "The monitor is paused."},
        RefusalRow{"ResumeOfARunningOne", "POST", featurePath + "/7/resume", "", 409, "The monitor runs."},
        RefusalRow{"NoRange", "GET", featurePath + "/metrics?ids=7", "", 422, "There is no such range."},
        RefusalRow{"UnknownRange", "GET", featurePath + "/metrics?ids=7&range=2h", "", 422, "There is no such range."}),
    nameOf);

}  // namespace
}  // namespace larkspan::simulator
