#include "monitors/LatencyGraph.h"

#include <gtest/gtest.h>

#include "fakes/FakeLocaleText.h"
#include "fakes/ManualClock.h"

namespace larkspan::monitors {

namespace {

class LatencyGraphOfARow : public testing::Test {
protected:
    LatencyGraph graph(std::optional<int> selected) const { return LatencyGraph::of(curve, selected, locale); }

    fakes::FakeLocaleText locale;
    std::shared_ptr<const LatencyCurve> curve
        = LatencyCurve::of({{0, 312, fakes::ManualClock().now()}, {1, -4, std::nullopt}});
};

TEST_F(LatencyGraphOfARow, BeginsWithoutASelection)
{
    EXPECT_EQ(graph(std::nullopt), (LatencyGraph{.curve = curve}));
}

TEST_F(LatencyGraphOfARow, TellsValueAndTimeOfTheSelectedSample)
{
    const auto selected = graph(0);
    EXPECT_EQ(selected.selectedIndex, 0);
    EXPECT_EQ(selected.callout, (LatencyCallout{.value = "312 ms", .time = "11-20 09:00"}));
    EXPECT_EQ(selected.callout.words(), "312 ms, 11-20 09:00");
}

TEST_F(LatencyGraphOfARow, TellsOneLineOfASampleWithoutATime)
{
    EXPECT_EQ(graph(1).callout, (LatencyCallout{.value = "-4 ms", .time = ""}));
    EXPECT_EQ(graph(1).callout.words(), "-4 ms");
}

TEST_F(LatencyGraphOfARow, ShowsNoSelectionThatIsBeyondItsSamples)
{
    EXPECT_EQ(graph(2), graph(std::nullopt));
    EXPECT_EQ(graph(-1), graph(std::nullopt));
}

}  // namespace

}  // namespace larkspan::monitors
