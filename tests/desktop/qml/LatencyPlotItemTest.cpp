#include "bridge/metrics/LatencyPlotItem.h"

#include <QQuickWindow>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace larkspan::bridge {

namespace {

class CountedPlot final : public LatencyPlotItem {
public:
    using LatencyPlotItem::LatencyPlotItem;

    void paint(QPainter* painter) override
    {
        ++paints;
        LatencyPlotItem::paint(painter);
    }

    int paints = 0;
};

class PaintsOfALatencyPlot : public testing::Test {
protected:
    PaintsOfALatencyPlot()
    {
        window_.resize(600, 80);
        plot_.setParentItem(window_.contentItem());
        plot_.setSize({600, 72});
        plot_.setProperty("lineColor", QColor(0, 0, 255));
        show({{0, 1}, {1, 3}, {2, 2}});
    }

    int show(std::vector<monitors::LatencyDataPoint> points)
    {
        const LatencyCurveValue curve{monitors::LatencyCurve::of(std::move(points))};
        plot_.setProperty("curve", QVariant::fromValue(curve));
        return painted();
    }

    int select(int index)
    {
        plot_.setProperty("selectedIndex", index);
        return painted();
    }

    /// How often it was painted by now.
    int painted()
    {
        window_.grabWindow();
        return plot_.paints;
    }

    QQuickWindow window_;
    CountedPlot plot_;
};

TEST_F(PaintsOfALatencyPlot, AreOneForAsLongAsOnlyTheSelectionMoves)
{
    EXPECT_EQ(painted(), 1);
    EXPECT_EQ(select(0), 1);
    EXPECT_EQ(select(2), 1);
    EXPECT_EQ(plot_.selectedX(), 600);
}

TEST_F(PaintsOfALatencyPlot, AreOneMoreForOtherSamplesAnotherThemeAndAnotherSize)
{
    EXPECT_EQ(show({{0, 5}}), 2);
    plot_.setProperty("lineColor", QColor(0, 0, 200));
    EXPECT_EQ(painted(), 3);
    plot_.setProperty("lineColor", QColor(0, 0, 200));
    EXPECT_EQ(painted(), 3);
    plot_.setSize({500, 72});
    EXPECT_EQ(painted(), 4);
}

TEST_F(PaintsOfALatencyPlot, AreNotNeededToMoveIt)
{
    plot_.setY(4);
    EXPECT_EQ(painted(), 1);
}

}  // namespace

}  // namespace larkspan::bridge
