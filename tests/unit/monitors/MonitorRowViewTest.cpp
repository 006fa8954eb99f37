#include "monitors/MonitorRowView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "api/KestruneAPI.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/ScriptedService.h"
#include "monitors/MonitorRow.h"

namespace larkspan::monitors {

namespace {

using platform::HttpResponse;
using presentation::Marker;
using presentation::Tone;

const std::string metricsURL = "https://service.example/user/api/monitors/metrics?ids=7&range=24h";
const std::string fullWindow = R"({"metrics": {"7": {"avg_ms": 312, "latency": [1, 2], "region_states":
    [{"region_id": "eu", "status": "up", "avg_ms": 4}]}}})";

class RowOfAMonitor : public testing::Test, public fakes::ScriptedService {
protected:
    void serve(const std::string& body, int status = 200) { transport.script(metricsURL, status, body); }

    void open()
    {
        row->toggleMetrics();
        run();
    }

    MonitorRow shown() const
    {
        model::Monitor monitor;
        monitor.id = "7";
        return MonitorRow::of(monitor, row.get(), false);
    }

    fakes::FakeLocaleText locale;
    const std::shared_ptr<MonitorRowView> row
        = std::make_shared<MonitorRowView>(MonitorRowView::Ports{main, api, locale}, "7");
};

TEST_F(RowOfAMonitor, IsClosedAndAsksForNothingUntilItIsOpened)
{
    run();
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_FALSE(shown().isOpen);
    EXPECT_EQ(row->instead(), Marker{});
    EXPECT_FALSE(row->showsPanel());
}

TEST_F(RowOfAMonitor, ShowsProgressWhileItsMetricsAreLoaded)
{
    row->toggleMetrics();
    EXPECT_TRUE(shown().isOpen);
    EXPECT_TRUE(shown().isLoading);
    EXPECT_EQ(shown().disclosure, "Hide latency graph");
    EXPECT_EQ(row->instead(), (Marker{.text = "Loading monitor metrics…", .showsProgress = true}));
    EXPECT_FALSE(row->offersRetry());
    EXPECT_FALSE(row->showsPanel());
}

TEST_F(RowOfAMonitor, CannotBeClosedWhileItsMetricsAreLoaded)
{
    row->toggleMetrics();
    run();
    row->toggleMetrics();
    row->retry();
    run();
    EXPECT_TRUE(*row->showingMetrics);
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(RowOfAMonitor, AsksForTheOneMonitorAndOneDay)
{
    open();
    ASSERT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(transport.requests.front().method, "GET");
    EXPECT_EQ(transport.requests.front().url, metricsURL);
}

TEST_F(RowOfAMonitor, ShowsThePanelOnceItsMetricsAreThere)
{
    serve(fullWindow);
    open();
    EXPECT_TRUE(row->showsPanel());
    EXPECT_FALSE(shown().isLoading);
    EXPECT_EQ(row->instead(), Marker{});
    EXPECT_EQ(row->panel()->figures, (std::vector<MetricRow>{{"Avg Response", "312 ms", Tone::orange}}));
    EXPECT_EQ(row->panel()->regions, (std::vector<RegionRow>{{"eu", "4ms", Tone::green, "Up"}}));
    EXPECT_TRUE(shown().badges.empty());
}

TEST_F(RowOfAMonitor, ClosedWithItsMetricsShowsTheCompactLine)
{
    serve(fullWindow);
    open();
    row->toggleMetrics();
    EXPECT_FALSE(row->showsPanel());
    EXPECT_EQ(shown().disclosure, "Show latency graph");
    EXPECT_EQ(shown().badges, (std::vector<MetricBadge>{{"clock", "312ms", "Avg", Tone::blue}}));
}

TEST_F(RowOfAMonitor, FetchesItsMetricsOnceForItsLife)
{
    serve(fullWindow);
    open();
    row->toggleMetrics();
    open();
    EXPECT_TRUE(row->showsPanel());
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(RowOfAMonitor, MakesItsPanelOnceWhenItsMetricsLand)
{
    serve(fullWindow);
    EXPECT_EQ(row->panel(), nullptr);
    open();
    const auto made = row->panel();
    ASSERT_NE(made, nullptr);
    made->selectLatency(1);
    row->toggleMetrics();
    open();
    EXPECT_EQ(row->panel(), made);
    EXPECT_EQ(*made->selectedLatencyIndex, 1) << "as it was left";
}

TEST_F(RowOfAMonitor, AMonitorMetricsWindowWithEveryFieldAbsentStillCountsAsPresent)
{
    serve(R"({"metrics": {"7": {}}})");
    open();
    EXPECT_TRUE(row->showsPanel());
    EXPECT_TRUE(row->panel()->figures.empty());
    EXPECT_TRUE(row->panel()->regions.empty());
    EXPECT_FALSE(row->offersRetry());
}

TEST_F(RowOfAMonitor, AWindowAbsentFromAnOtherwiseGoodResponseIsAFailureWithItsOwnText)
{
    serve(R"({"metrics": {"8": {}}})");
    open();
    EXPECT_EQ(row->instead(),
        (Marker{.symbol = "chart.xyaxis.line", .text = "The server returned no metrics for this monitor."}));
    EXPECT_TRUE(row->offersRetry());
}

TEST_F(RowOfAMonitor, AFailureStaysInTheRowAndRetryFetchesAgain)
{
    serve("", 503);
    open();
    EXPECT_EQ(row->instead(), (Marker{.symbol = "chart.xyaxis.line", .text = "Server returned HTTP status code 503."}));
    EXPECT_FALSE(shown().isLoading);
    EXPECT_TRUE(row->offersRetry());

    serve(fullWindow);
    row->retry();
    EXPECT_EQ(*row->metricsLoadError, std::nullopt);
    EXPECT_EQ(row->instead().text, "Loading monitor metrics…");
    run();
    EXPECT_TRUE(row->showsPanel());
    EXPECT_EQ(transport.requests.size(), 2u);
}

TEST_F(RowOfAMonitor, ClosedAfterAFailureFetchesAgainWhenItIsOpened)
{
    serve("", 503);
    open();
    row->toggleMetrics();
    EXPECT_FALSE(row->offersRetry());
    EXPECT_EQ(row->instead(), Marker{});
    open();
    EXPECT_EQ(transport.requests.size(), 2u);
}

TEST_F(RowOfAMonitor, WithNeitherMetricsNorAFailureSaysThatThereAreNone)
{
    row->showingMetrics = true;
    EXPECT_EQ(
        row->instead(), (Marker{.symbol = "chart.xyaxis.line", .text = "No metrics are available for this monitor."}));
}

TEST_F(RowOfAMonitor, ThatHasGoneDuringAFetchIsFreedAfterIt)
{
    auto gone = std::make_shared<MonitorRowView>(MonitorRowView::Ports{main, api, locale}, "9");
    const std::weak_ptr<MonitorRowView> held = gone;
    gone->toggleMetrics();
    gone.reset();
    run();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, "{}"});
    run();
    EXPECT_TRUE(held.expired());
}

}  // namespace

}  // namespace larkspan::monitors
