#include "bridge/items/LatencyPlotItem.h"

#include <QQuickWindow>

#include <gtest/gtest.h>

#include "fakes/FakeLocaleText.h"

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
        show(std::nullopt);
    }

    /// Shows the curve with that selection and returns how often it has been painted.
    int show(std::optional<int> selected)
    {
        plot_.setGraph(LatencyGraphValue::of(monitors::LatencyGraph::of(curve_, selected, locale_)));
        return painted();
    }

    int painted()
    {
        window_.grabWindow();
        return plot_.paints;
    }

    fakes::FakeLocaleText locale_;
    std::shared_ptr<const monitors::LatencyCurve> curve_ = monitors::LatencyCurve::of({{0, 1}, {1, 3}, {2, 2}});
    QQuickWindow window_;
    CountedPlot plot_;
};

TEST_F(PaintsOfALatencyPlot, AreOneForAsLongAsOnlyTheSelectionMoves)
{
    EXPECT_EQ(painted(), 1);
    EXPECT_EQ(show(0), 1);
    EXPECT_EQ(show(2), 1);
    EXPECT_EQ(plot_.selectedX(), 600);
}

TEST_F(PaintsOfALatencyPlot, AreOneMoreForOtherSamplesAnotherThemeAndAnotherSize)
{
    curve_ = monitors::LatencyCurve::of({{0, 5}});
    EXPECT_EQ(show(std::nullopt), 2);
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
