#include <gtest/gtest.h>

#include <memory>

#include "api/KestruneAPI.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/ScriptedService.h"
#include "monitors/MonitorRowView.h"

namespace larkspan::monitors {

namespace {

using model::MonitorMetricsWindow;
using Values = std::vector<std::int64_t>;

class LatencyOfAMonitor : public testing::Test, public fakes::ScriptedService {
protected:
    void arrive(MonitorMetricsWindow window)
    {
        row->showingMetrics = true;
        row->metrics = std::move(window);
    }

    Values drawn() const
    {
        Values values;
        const auto graph = row->latencyGraph();
        for (const auto& point : graph.curve->points) values.push_back(point.value);
        return values;
    }

    fakes::FakeLocaleText locale;
    const std::shared_ptr<MonitorRowView> row
        = std::make_shared<MonitorRowView>(MonitorRowView::Ports{main, api, locale}, "7");
};

TEST_F(LatencyOfAMonitor, HasNoGraphWithoutMetricsWithoutLatencyAndWithAnEmptyOne)
{
    EXPECT_EQ(row->latencyGraph(), LatencyGraph{});
    arrive({});
    EXPECT_EQ(row->latencyGraph(), LatencyGraph{});
    arrive({.latency = Values{}, .latencyPoints = std::vector<model::LatencyPoint>{{1, {}}}});
    EXPECT_EQ(row->latencyGraph(), LatencyGraph{}) << "whatever points there are";
}

TEST_F(LatencyOfAMonitor, AnEmptyLatencyArrayHidesTheGraphButTheRowsBelowItAreStillShown)
{
    arrive({.avgMs = 250, .latency = Values{}});
    EXPECT_EQ(row->latencyGraph(), LatencyGraph{});
    EXPECT_TRUE(row->showsPanel());
    EXPECT_EQ(row->figures().size(), 1u);
}

TEST_F(LatencyOfAMonitor, IsThatOfThePointsWhereThereAreSuch)
{
    arrive({.latency = Values{5, 6}, .latencyPoints = std::vector<model::LatencyPoint>{{1, {}}, {2, {}}, {3, {}}}});
    EXPECT_EQ(drawn(), (Values{1, 2, 3}));
}

TEST_F(LatencyOfAMonitor, IsAnEmptyPlotWhereThePointsAreNoneBesideALatency)
{
    arrive({.latency = Values{5, 6}, .latencyPoints = std::vector<model::LatencyPoint>{}});
    EXPECT_EQ(drawn(), Values{});
    row->selectLatency(0);
    EXPECT_EQ(*row->selection.selectedLatencyIndex, std::nullopt);
}

TEST_F(LatencyOfAMonitor, SelectsTheNearestSampleAndTellsIt)
{
    arrive({.latency = Values{10, 20, 30, 40, 50}});
    EXPECT_EQ(row->latencyGraph().selectedIndex, std::nullopt);
    row->selectLatency(3.5);
    EXPECT_EQ(*row->selection.selectedLatencyIndex, 3);
    EXPECT_EQ(row->latencyGraph().callout.value, "40 ms");
}

TEST_F(LatencyOfAMonitor, KeepsItsSelectionWhileItIsClosedAndOpenedAgain)
{
    arrive({.latency = Values{10, 20, 30}});
    row->selectLatency(2);
    row->toggleMetrics();
    row->toggleMetrics();
    EXPECT_EQ(row->latencyGraph().selectedIndex, 2);
}

TEST_F(LatencyOfAMonitor, TellsOfASelectionApartFromTheRestOfTheRow)
{
    arrive({.latency = Values{10, 20, 30}});
    int ofTheRow = 0;
    int ofTheSelection = 0;
    const auto whole = row->objectWillChange([&ofTheRow] { ++ofTheRow; });
    const auto selection = row->selection.objectWillChange([&ofTheSelection] { ++ofTheSelection; });
    row->selectLatency(1);
    EXPECT_EQ(ofTheRow, 0);
    EXPECT_EQ(ofTheSelection, 1);
}

}  // namespace

}  // namespace larkspan::monitors
