#include "monitors/MetricsPanel.h"

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
    MetricsPanel& arrive(MonitorMetricsWindow window)
    {
        row->showingMetrics = true;
        row->land(std::move(window));
        return *row->panel();
    }

    Values drawn() const
    {
        Values values;
        for (const auto& point : row->panel()->curve->points) values.push_back(point.value);
        return values;
    }

    fakes::FakeLocaleText locale;
    const std::shared_ptr<MonitorRowView> row
        = std::make_shared<MonitorRowView>(MonitorRowView::Ports{main, api, locale}, "7");
};

TEST_F(LatencyOfAMonitor, HasNoGraphWithoutMetricsWithoutLatencyAndWithAnEmptyOne)
{
    EXPECT_EQ(row->panel(), nullptr);
    EXPECT_EQ(arrive({}).curve, nullptr);
    EXPECT_EQ(arrive({.latency = Values{}, .latencyPoints = std::vector<model::LatencyPoint>{{1, {}}}}).curve, nullptr)
        << "whatever points there are";
}

TEST_F(LatencyOfAMonitor, AnEmptyLatencyArrayHidesTheGraphButTheRowsBelowItAreStillShown)
{
    const auto& panel = arrive({.avgMs = 250, .latency = Values{}});
    EXPECT_EQ(panel.curve, nullptr);
    EXPECT_TRUE(row->showsPanel());
    EXPECT_EQ(panel.figures.size(), 1u);
}

TEST_F(LatencyOfAMonitor, IsThatOfThePointsWhereThereAreSuch)
{
    arrive({.latency = Values{5, 6}, .latencyPoints = std::vector<model::LatencyPoint>{{1, {}}, {2, {}}, {3, {}}}});
    EXPECT_EQ(drawn(), (Values{1, 2, 3}));
}

TEST_F(LatencyOfAMonitor, IsAnEmptyPlotWhereThePointsAreNoneBesideALatency)
{
    auto& panel = arrive({.latency = Values{5, 6}, .latencyPoints = std::vector<model::LatencyPoint>{}});
    EXPECT_EQ(drawn(), Values{});
    panel.selectLatency(0);
    EXPECT_EQ(*panel.selectedLatencyIndex, std::nullopt);
}

TEST_F(LatencyOfAMonitor, WithoutAGraphHasNothingToSelect)
{
    auto& panel = arrive({.avgMs = 250});
    panel.selectLatency(0);
    EXPECT_EQ(*panel.selectedLatencyIndex, std::nullopt);
    EXPECT_EQ(panel.selectedLatency(), std::nullopt);
}

TEST_F(LatencyOfAMonitor, SelectsTheNearestSampleAndTellsIt)
{
    auto& panel = arrive({.latency = Values{10, 20, 30, 40, 50}});
    EXPECT_EQ(panel.selectedLatency(), std::nullopt);
    panel.selectLatency(3.5);
    EXPECT_EQ(*panel.selectedLatencyIndex, 3);
    EXPECT_EQ(panel.selectedLatency()->callout.value, "40 ms");
}

TEST_F(LatencyOfAMonitor, KeepsItsSelectionWhileItIsClosedAndOpenedAgain)
{
    arrive({.latency = Values{10, 20, 30}}).selectLatency(2);
    row->toggleMetrics();
    row->toggleMetrics();
    EXPECT_EQ(row->panel()->selectedLatency()->point.index, 2);
}

TEST_F(LatencyOfAMonitor, TellsOfASelectionApartFromTheRestOfTheRow)
{
    auto& panel = arrive({.latency = Values{10, 20, 30}});
    int ofTheRow = 0;
    int ofTheSelection = 0;
    const auto whole = row->objectWillChange([&ofTheRow] { ++ofTheRow; });
    const auto selection = panel.objectWillChange([&ofTheSelection] { ++ofTheSelection; });
    panel.selectLatency(1);
    EXPECT_EQ(ofTheRow, 0);
    EXPECT_EQ(ofTheSelection, 1);
}

}  // namespace

}  // namespace larkspan::monitors
