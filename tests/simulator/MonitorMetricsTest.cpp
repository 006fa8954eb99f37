#include "account/MonitorMetrics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "SeededService.h"
#include "model/bodies/MonitorMetricsResponse.h"
#include "json/Json.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

const support::Time noon = std::chrono::sys_days(std::chrono::year(2026) / 3 / 1) + 12h;

Monitor monitorNamed(const std::string& id)
{
    Monitor monitor;
    monitor.id = id;
    monitor.state = "up";
    return monitor;
}

TEST(MonitorMetrics, OfADayAreASampleForEachQuarterOfAnHourUpToNow)
{
    const auto samples = metricsOf(monitorNamed("7"), 24h, noon + 7min).samples;

    ASSERT_EQ(samples.size(), 96u);
    EXPECT_EQ(samples.back().time, noon);
    EXPECT_EQ(samples[0].time, noon - 95 * 15min);
    for (const auto& sample : samples) {
        EXPECT_GT(sample.milliseconds, 20);
        EXPECT_LT(sample.milliseconds, 2'000);
    }
}

TEST(MonitorMetrics, HaveASampleForEachMinuteOfADayWhereThereAreSoMany)
{
    auto monitor = monitorNamed("7");
    monitor.samplesPerWindow = 1'440;
    const auto samples = metricsOf(monitor, 24h, noon).samples;

    ASSERT_EQ(samples.size(), 1'440u);
    EXPECT_EQ(samples[1].time - samples[0].time, 1min);
}

TEST(MonitorMetrics, AreSlowerByDayThanByNight)
{
    auto monitor = monitorNamed("7");
    monitor.samplesPerWindow = 1'440;
    const auto samples = metricsOf(monitor, 24h, noon + 12h).samples;
    const auto sumOf = [&samples](std::chrono::hours from) {
        int sum = 0;
        for (const auto& sample : samples) {
            const auto time = sample.time - (noon - 12h);
            if (time >= from && time < from + 4h) sum += sample.milliseconds;
        }
        return sum;
    };

    EXPECT_GT(sumOf(10h), 1.25 * sumOf(0h));
}

TEST(MonitorMetrics, HaveAFewOutliersADayHoweverManySamplesThereAre)
{
    auto monitor = monitorNamed("7");
    for (const int count : {96, 288, 1'440}) {
        monitor.samplesPerWindow = count;
        const auto samples = metricsOf(monitor, 24h, noon).samples;
        int outliers = 0;
        for (std::size_t index = 1; index < samples.size(); ++index)
            outliers += samples[index].milliseconds > 1.5 * samples[index - 1].milliseconds;
        EXPECT_GE(outliers, 1) << count;
        EXPECT_LE(outliers, 10) << count;
    }
}

TEST(MonitorMetrics, MoveOnWithTheClockWhileTheirSamplesStayWhatTheyAre)
{
    const auto before = metricsOf(monitorNamed("7"), 24h, noon).samples;
    const auto after = metricsOf(monitorNamed("7"), 24h, noon + 30min).samples;

    for (std::size_t index = 0; index + 2 < before.size(); ++index) {
        EXPECT_EQ(after[index].milliseconds, before[index + 2].milliseconds);
        EXPECT_EQ(after[index].time, before[index + 2].time);
    }
}

TEST(MonitorMetrics, DifferFromMonitorToMonitor)
{
    std::set<double> averages;
    for (int id = 1; id <= 20; ++id) averages.insert(metricsOf(monitorNamed(std::to_string(id)), 24h, noon).averageMs);

    EXPECT_GT(averages.size(), 15u);
}

TEST(MonitorMetrics, OfAMonitorInTroubleAreWorse)
{
    auto monitor = monitorNamed("7");
    const auto well = metricsOf(monitor, 24h, noon);
    monitor.state = "down";
    const auto down = metricsOf(monitor, 24h, noon);

    EXPECT_GT(well.uptimePercentage, 99.8);
    EXPECT_LT(down.uptimePercentage, 98);
    EXPECT_GT(down.samples.back().milliseconds, 4 * well.samples.back().milliseconds);
    EXPECT_EQ(down.samples.front().milliseconds, well.samples.front().milliseconds);
    EXPECT_GT(down.responseTimeChange, well.responseTimeChange);
    for (const auto& region : down.regions) EXPECT_EQ(region.state, "down");
}

TEST(MonitorMetrics, OfADegradedMonitorAreBadInOneRegion)
{
    auto monitor = monitorNamed("7");
    monitor.state = "degraded";
    const auto regions = metricsOf(monitor, 24h, noon).regions;

    EXPECT_EQ(std::ranges::count(regions, "degraded", &MonitorMetrics::Region::state), 1);
}

TEST(MonitorMetrics, OfAPausedMonitorEndWithItsPause)
{
    auto monitor = monitorNamed("7");
    monitor.enabled = false;
    monitor.updatedAt = noon - 48h;

    EXPECT_EQ(metricsOf(monitor, 24h, noon).samples.back().time, noon - 48h);
}

/// The window of a monitor whose metrics come in `form`, as the client reads it.
class MetricsForms : public SeededService {
protected:
    model::MonitorMetricsResponse::Windows windowsIn(MetricsForm form)
    {
        service_.withAccount([form](Account& account) { account.findMonitor("1")->metricsForm = form; });
        return read<model::MonitorMetricsResponse>("/user/api/monitors/metrics?ids=1&range=24h").metrics;
    }
};

TEST_F(MetricsForms, WordsAndNumbersAreTheSameTrendsToTheClient)
{
    const std::vector<std::string> words{"up", "down", "stable"};
    const auto inWords = windowsIn(MetricsForm::words).at("1");
    const auto inNumbers = windowsIn(MetricsForm::numbers).at("1");

    EXPECT_THAT(words, testing::Contains(inWords.responseTimeTrend));
    EXPECT_THAT(words, testing::Contains(inNumbers.responseTimeTrend));
    EXPECT_EQ(inWords.latency->size(), 96u);
    EXPECT_EQ(inWords.latencyPoints->size(), 96u);
    EXPECT_GE(inWords.regionStates->size(), 2u);
    EXPECT_EQ(inNumbers.avgMs, inWords.avgMs);
}

TEST_F(MetricsForms, NumbersTravelAsNumbers)
{
    windowsIn(MetricsForm::numbers);
    service_.setShape(ResultShape::bare);
    const auto answer = parsedJson(get("/user/api/monitors/metrics?ids=1&range=24h"));

    EXPECT_TRUE(answer.at("metrics").at("1").at("uptime_trend").is_number());
}

TEST_F(MetricsForms, GapsLeaveAGraphWithoutTimes)
{
    const auto window = windowsIn(MetricsForm::gaps).at("1");

    EXPECT_TRUE(window.avgMs);
    EXPECT_EQ(window.latency->size(), 96u);
    EXPECT_FALSE(window.latencyPoints);
    EXPECT_FALSE(window.regionStates);
    EXPECT_FALSE(window.uptimePercentage);
}

TEST_F(MetricsForms, NoLatencyIsAnEmptyOneBesideItsPoints)
{
    const auto window = windowsIn(MetricsForm::noLatency).at("1");

    EXPECT_THAT(window.latency, testing::Optional(testing::IsEmpty()));
    EXPECT_EQ(window.latencyPoints->size(), 96u);
    EXPECT_TRUE(window.avgMs);
}

TEST_F(MetricsForms, MalformedFiguresAreAbsentAndTheOthersStand)
{
    const auto window = windowsIn(MetricsForm::malformed).at("1");

    EXPECT_TRUE(window.uptimePercentage);
    EXPECT_TRUE(window.latencyPoints);
    EXPECT_FALSE(window.avgMs);
    EXPECT_FALSE(window.latency);
    EXPECT_FALSE(window.regionStates);
    EXPECT_FALSE(window.updated);
    EXPECT_FALSE(window.uptimeTrend);
}

TEST_F(MetricsForms, AnEmptyWindowIsNotAMissingOne)
{
    EXPECT_EQ(windowsIn(MetricsForm::empty).at("1"), model::MonitorMetricsWindow{});
    EXPECT_TRUE(windowsIn(MetricsForm::missing).empty());
}

}  // namespace
}  // namespace larkspan::simulator
