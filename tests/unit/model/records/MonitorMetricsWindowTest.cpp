#include "model/records/MonitorMetricsWindow.h"

#include <gtest/gtest.h>

#include "model/bodies/MonitorMetricsResponse.h"
#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

const support::Time halfPastNine = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min;

MonitorMetricsWindow windowOf(const std::string& keys)
{
    return decoded<MonitorMetricsResponse>(R"({"metrics":{"m":{)" + keys + "}}}").metrics.at("m");
}

TEST(MonitorMetricsWindow, ReadsEveryField)
{
    const MonitorMetricsWindow expected{.avgMs = 181.5,
        .uptimePercentage = 100,
        .uptimeTrend = "stable",
        .responseTimeTrend = "down",
        .responseTimeChange = -3.25,
        .state = "up",
        .updated = halfPastNine,
        .latency = std::vector<std::int64_t>{180, 183},
        .latencyPoints = std::vector<LatencyPoint>{{.value = 180, .timestamp = halfPastNine}},
        .regionStates = std::vector<RegionState>{{.regionId = "eu",
            .regionName = "Europe",
            .status = "up",
            .updated = "just now",
            .avgMs = 12}},
        .apdex = 0.97,
        .apdexChange = 0};
    EXPECT_EQ(windowOf(R"("avg_ms":181.5,"uptime_percentage":100,"uptime_trend":"stable","response_time_trend":-3.25,
        "response_time_change":-3.25,"state":"up","updated":"2026-03-01T09:30:00Z","latency":[180,183],
        "latency_points":[{"value":180,"timestamp":"2026-03-01T09:30:00Z"}],
        "region_states":[{"region_id":"eu","region_name":"Europe","status":"up","updated":"just now","avg_ms":12}],
        "apdex":0.97,"apdex_change":0)"),
        expected);
}

TEST(MonitorMetricsWindow, OfAnEmptyObjectHasEveryFieldAbsentAndIsNoFailure)
{
    EXPECT_EQ(windowOf(""), MonitorMetricsWindow{});
}

struct FieldRow {
    std::string key;
    std::string value;
};

void PrintTo(const FieldRow& row, std::ostream* out)
{
    *out << row.key << ": " << row.value;
}

class FieldOfAWindow : public testing::TestWithParam<FieldRow> {};

TEST_P(FieldOfAWindow, ThatDoesNotReadStaysAbsentAloneWhileTheOthersStand)
{
    const auto& [key, value] = GetParam();
    const auto window = windowOf('"' + key + "\":" + value + R"(,"avg_ms":1,"state":"up")");
    auto expected = windowOf(R"("avg_ms":1,"state":"up")");
    if (key == "avg_ms") expected.avgMs.reset();
    if (key == "state") expected.state.reset();
    EXPECT_EQ(window, expected);
}

INSTANTIATE_TEST_SUITE_P(Numbers, FieldOfAWindow,
    testing::Values(FieldRow{"avg_ms", R"("1")"}, FieldRow{"avg_ms", "null"},
        FieldRow{"uptime_percentage", R"("99.9")"}, FieldRow{"response_time_change", "true"}, FieldRow{"apdex", "[]"},
        FieldRow{"apdex_change", "{}"}));

INSTANTIATE_TEST_SUITE_P(Texts, FieldOfAWindow,
    testing::Values(FieldRow{"state", "1"}, FieldRow{"updated", R"("n/a")"}, FieldRow{"updated", R"("2026-03-01")"},
        FieldRow{"updated", "1772357400"}));

INSTANTIATE_TEST_SUITE_P(Lists, FieldOfAWindow,
    testing::Values(FieldRow{"latency", "[10, 12.5]"}, FieldRow{"latency", R"([10, "12"])"}, FieldRow{"latency", "10"},
        FieldRow{"latency", "[10, null]"}, FieldRow{"latency_points", R"([{"value":1}])"},
        FieldRow{"latency_points", R"([{"value":1.5,"timestamp":"2026-03-01T09:30:00Z"}])"},
        FieldRow{"latency_points", R"([{"value":1,"timestamp":"n/a"}])"}, FieldRow{"latency_points", "{}"},
        FieldRow{"region_states", R"([{"region_id":"a","status":"up","avg_ms":1},{"region_id":"b","status":"up"}])"},
        FieldRow{"region_states", R"([{"region_id":1,"status":"up","avg_ms":1}])"},
        FieldRow{"region_states", R"([{"region_id":"a","avg_ms":1}])"},
        FieldRow{"region_states", R"([{"region_id":"a","status":"up","avg_ms":1,"updated":7}])"}));

INSTANTIATE_TEST_SUITE_P(Trends, FieldOfAWindow,
    testing::Values(FieldRow{"uptime_trend", "true"}, FieldRow{"uptime_trend", "null"}, FieldRow{"uptime_trend", "[1]"},
        FieldRow{"response_time_trend", "false"}, FieldRow{"response_time_trend", "{}"}));

TEST(MonitorMetricsWindow, KeepsEmptyListsAndEmptyTexts)
{
    const auto window = windowOf(R"("latency":[],"latency_points":[],"region_states":[],"state":"","uptime_trend":"")");
    EXPECT_EQ(window.latency, std::vector<std::int64_t>{});
    EXPECT_EQ(window.latencyPoints, std::vector<LatencyPoint>{});
    EXPECT_EQ(window.regionStates, std::vector<RegionState>{});
    EXPECT_EQ(window.state, "");
    EXPECT_EQ(window.uptimeTrend, "");
}

TEST(MonitorMetricsWindow, NeedsNoNameAndNoTimeOfARegion)
{
    const auto regions = windowOf(R"("region_states":[{"region_id":"a","status":"up","avg_ms":1}])").regionStates;
    EXPECT_EQ(regions, (std::vector{RegionState{.regionId = "a", .status = "up", .avgMs = 1}}));
}

struct TrendRow {
    std::string value;
    std::optional<std::string> trend;
};

void PrintTo(const TrendRow& row, std::ostream* out)
{
    *out << row.value;
}

class Trend : public testing::TestWithParam<TrendRow> {};

TEST_P(Trend, IsTheWordAsItStandsOrTheDirectionOfANumber)
{
    EXPECT_EQ(windowOf("\"uptime_trend\":" + GetParam().value).uptimeTrend, GetParam().trend);
    EXPECT_EQ(windowOf("\"response_time_trend\":" + GetParam().value).responseTimeTrend, GetParam().trend);
}

INSTANTIATE_TEST_SUITE_P(Each, Trend,
    testing::Values(TrendRow{R"("rising")", "rising"}, TrendRow{R"("UP")", "UP"}, TrendRow{R"("0.5")", "0.5"},
        TrendRow{"0.0005", "stable"}, TrendRow{"0.001", "stable"}, TrendRow{"0.0011", "up"}, TrendRow{"7", "up"},
        TrendRow{"0", "stable"}, TrendRow{"-0.001", "stable"}, TrendRow{"-0.002", "down"}, TrendRow{"-7", "down"},
        TrendRow{"true", std::nullopt}, TrendRow{"null", std::nullopt}, TrendRow{"[]", std::nullopt}));

TEST(MonitorMetricsResponse, HasAWindowForEachMonitorInBothShapes)
{
    const std::string body = R"({"metrics":{"7":{"avg_ms":1},"b":{}}})";
    const MonitorMetricsResponse expected{.metrics = {{"7", {.avgMs = 1}}, {"b", {}}}};
    EXPECT_EQ(decoded<MonitorMetricsResponse>(body), expected);
    EXPECT_EQ(decoded<MonitorMetricsResponse>("{\"data\":" + body + '}'), expected);
    EXPECT_TRUE(decoded<MonitorMetricsResponse>(R"({"metrics":{}})").metrics.empty());
}

TEST(MonitorMetricsResponse, ChangesAnIdThatHoldsAnUnderscore)
{
    const auto metrics = decoded<MonitorMetricsResponse>(R"({"metrics":{"mon_a7":{},"_x":{}}})").metrics;
    EXPECT_TRUE(metrics.contains("monA7"));
    EXPECT_TRUE(metrics.contains("_x"));
    EXPECT_EQ(metrics.size(), 2u);
}

TEST(MonitorMetricsResponse, TakesTheFirstOfIdsThatConvertAlike)
{
    const auto metrics = decoded<MonitorMetricsResponse>(R"({"metrics":{"a_b":{"avg_ms":1},"aB":7}})").metrics;
    EXPECT_EQ(metrics.size(), 1u);
    EXPECT_EQ(metrics.at("aB").avgMs, 1);
}

TEST(MonitorMetricsResponse, FailsWithAWindowThatIsNoObject)
{
    EXPECT_EQ(failureOf<MonitorMetricsResponse>(R"({"data":{"metrics":{"m":7}}})"),
        typeMismatch("data.metrics.m", "an object", "a number"));
    EXPECT_EQ(failureOf<MonitorMetricsResponse>(R"({"data":{"metrics":{"m":null}}})"),
        valueNotFound("data.metrics.m", "an object"));
}

TEST(MonitorMetricsResponse, FailsWithoutItsMap)
{
    EXPECT_EQ(failureOf<MonitorMetricsResponse>(R"({"data":{}})"), keyNotFound("data.metrics"));
    EXPECT_EQ(
        failureOf<MonitorMetricsResponse>(R"({"data":{"metrics":null}})"), valueNotFound("data.metrics", "an object"));
    EXPECT_EQ(failureOf<MonitorMetricsResponse>(R"({"data":{"metrics":[]}})"),
        typeMismatch("data.metrics", "an object", "a list"));
}

}  // namespace

}  // namespace larkspan::model
