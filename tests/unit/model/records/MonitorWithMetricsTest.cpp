#include "model/records/MonitorWithMetrics.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using Monitors = std::vector<MonitorWithMetrics>;

DecodingFailure failureOfMonitor(const std::string& monitor)
{
    return failureOf<Monitors>("{\"data\":[" + monitor + "]}");
}

TEST(MonitorWithMetrics, ReadsEachOfItsWindows)
{
    const Monitors expected{{.id = "m1",
        .name = "Health",
        .target = "a.example",
        .metrics = {.oneHour = MonitorMetricsWindow{.avgMs = 1},
            .twentyFourHours = MonitorMetricsWindow{.avgMs = 24},
            .sevenDays = MonitorMetricsWindow{.avgMs = 7},
            .thirtyDays = MonitorMetricsWindow{.avgMs = 30}}}};
    EXPECT_EQ(decoded<Monitors>(R"([{"id":"m1","name":"Health","target":"a.example","metrics":{"1h":{"avg_ms":1},
        "24h":{"avg_ms":24},"7d":{"avg_ms":7},"30d":{"avg_ms":30}}}])"),
        expected);
}

TEST(MonitorWithMetrics, TellsAWindowWithEveryFieldAbsentFromAMissingOne)
{
    const auto metrics = decoded<Monitors>(R"([{"id":"m","name":"H","metrics":{"1h":{},"24h":null}}])").at(0).metrics;
    EXPECT_EQ(metrics, (MonitorMetricsWindows{.oneHour = MonitorMetricsWindow{}}));
}

TEST(MonitorWithMetrics, HasNoComponentWhateverTheWireSays)
{
    for (const std::string key : {"component_id", "componentId", "_component_id", "component__id"}) {
        const auto monitors = decoded<Monitors>(R"([{"id":"m","name":"H","metrics":{},")" + key + R"(":"c1"}])");
        EXPECT_EQ(monitors.at(0).componentId, std::nullopt) << key;
    }
}

TEST(MonitorWithMetrics, FailsWithAWindowThatIsNoObject)
{
    EXPECT_EQ(failureOfMonitor(R"({"id":"m","name":"H","metrics":{"7d":[]}})"),
        typeMismatch("data[0].metrics.7d", "an object", "a list"));
}

TEST(MonitorWithMetrics, FailsWithoutWhatItNeedsAndWithANumberAsItsId)
{
    EXPECT_EQ(failureOfMonitor(R"({"name":"H","metrics":{}})"), keyNotFound("data[0].id"));
    EXPECT_EQ(
        failureOfMonitor(R"({"id":1,"name":"H","metrics":{}})"), typeMismatch("data[0].id", "a string", "a number"));
    EXPECT_EQ(failureOfMonitor(R"({"id":"m","metrics":{}})"), keyNotFound("data[0].name"));
    EXPECT_EQ(failureOfMonitor(R"({"id":"m","name":"H"})"), keyNotFound("data[0].metrics"));
    EXPECT_EQ(
        failureOfMonitor(R"({"id":"m","name":"H","metrics":null})"), valueNotFound("data[0].metrics", "an object"));
}

}  // namespace

}  // namespace larkspan::model
