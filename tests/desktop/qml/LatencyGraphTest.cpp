#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "KitWindow.h"
#include "bridge/metrics/LatencyCurveValue.h"
#include "bridge/metrics/SelectedLatencyValue.h"
#include "fakes/FakeLocaleText.h"
#include "monitors/LatencySelection.h"

namespace larkspan {

namespace {

using bridge::LatencyCurveValue;
using bridge::SelectedLatencyValue;

/// A graph of 408 points' width, 4 of them empty on each side, in a scrolling list; the values of its samples are "10",
/// "20" and so on.
class LatencyGraphOnScreen : public testing::Test, public KitWindow {
protected:
    LatencyGraphOnScreen()
        : KitWindow(QStringLiteral(R"(
            property latencyCurve curve
            property selectedLatency selection
            property real position: NaN
            property int selections: 0
            Flickable {
                objectName: "list"
                anchors.fill: parent
                contentWidth: 900
                contentHeight: 2000
                Item { width: 900; height: 2000 }
                LatencyGraph {
                    objectName: "graph"
                    x: 20
                    y: 100
                    width: 408
                    curve: window.curve
                    selection: window.selection
                    onSelected: position => { window.position = position; window.selections += 1 }
                }
                Item { objectName: "other"; activeFocusOnTab: true }
            })"))
    {
        show(11);
    }

    void show(std::size_t count)
    {
        std::vector<monitors::LatencyDataPoint> points;
        for (int index = 0; index < static_cast<int>(count); ++index) points.push_back({index, 10 * (index + 1)});
        if (!points.empty()) points.back().timestamp = support::Time{};
        curve_ = monitors::LatencyCurve::of(points);
        setProperty("curve", QVariant::fromValue(LatencyCurveValue{curve_}));
        select(std::nullopt);
    }

    /// As the row that holds the selection does.
    void select(std::optional<int> index)
    {
        selected_ = index;
        setProperty("selection",
            QVariant::fromValue(SelectedLatencyValue::of(monitors::SelectedLatency::of(*curve_, selected_, locale_))));
    }
    void takeSelection()
    {
        settle();
        if (const auto position = property("position").toDouble(); !qIsNaN(position))
            select(monitors::nearestIndex(curve_->points, position));
    }

    std::optional<int> press(int x)
    {
        QTest::mousePress(&window(), Qt::LeftButton, {}, at(x));
        takeSelection();
        return selected_;
    }
    std::optional<int> drag(int x, int y = 36)
    {
        QTest::mouseMove(&window(), at(x, y));
        takeSelection();
        return selected_;
    }
    void release(int x) { QTest::mouseRelease(&window(), Qt::LeftButton, {}, at(x)); }

    std::optional<int> type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        KitWindow::press(key, modifiers);
        takeSelection();
        return selected_;
    }

    QPoint at(int x, int y = 36) const { return graph().mapToScene(QPointF(x, y)).toPoint(); }
    QQuickItem& graph() const { return item(QStringLiteral("graph")); }
    QQuickItem& list() const { return item(QStringLiteral("list")); }
    QAccessibleInterface& accessible() const { return *QAccessible::queryAccessibleInterface(&graph()); }

    QStringList texts() const { return names(QAccessible::StaticText); }

    QStringList names(QAccessible::Role role) const
    {
        QStringList found;
        collect(&accessible(), role, found);
        return found;
    }

    static void collect(QAccessibleInterface* thing, QAccessible::Role role, QStringList& found)
    {
        if (thing->state().invisible) return;
        if (thing->role() == role) found << thing->text(QAccessible::Name);
        for (int child = 0; child < thing->childCount(); ++child) collect(thing->child(child), role, found);
    }

    fakes::FakeLocaleText locale_;
    std::shared_ptr<const monitors::LatencyCurve> curve_;
    std::optional<int> selected_;
};

TEST_F(LatencyGraphOnScreen, IsSeventyTwoPointsHigh)
{
    EXPECT_EQ(graph().height(), 72);
}

TEST_F(LatencyGraphOnScreen, APressSelectsTheNearestSampleAndADragFollowsThePointer)
{
    EXPECT_EQ(press(4 + 3 * 40), 3);
    EXPECT_EQ(drag(4 + 5 * 40 + 15), 5);
    EXPECT_EQ(drag(4 + 5 * 40 + 25), 6);
    release(4 + 5 * 40 + 25);
    EXPECT_EQ(selected_, 6) << "the selection lasts";
}

TEST_F(LatencyGraphOnScreen, APressMidwayBetweenTwoSamplesSelectsTheEarlierOne)
{
    EXPECT_EQ(press(4 + 3 * 40 + 20), 3);
}

TEST_F(LatencyGraphOnScreen, ADragBeyondAnEndSelectsThatEnd)
{
    press(200);
    EXPECT_EQ(drag(-15), 0);
    EXPECT_EQ(drag(430), 10);
}

TEST_F(LatencyGraphOnScreen, HoveringDoesNothing)
{
    drag(100);
    drag(300);
    EXPECT_EQ(property("selections").toInt(), 0);
}

TEST_F(LatencyGraphOnScreen, EveryPressSelectsTheOnlySampleAndNoneWhereThereIsNone)
{
    show(1);
    EXPECT_EQ(press(10), 0);
    EXPECT_EQ(drag(400), 0);
    release(400);
    show(0);
    EXPECT_EQ(press(10), std::nullopt);
}

TEST_F(LatencyGraphOnScreen, ADragLeavesTheListWhereItIsAndTheWheelScrollsIt)
{
    press(200);
    for (int step = 1; step <= 10; ++step) drag(200 - 10 * step, 36 - 3 * step);
    release(100);
    EXPECT_EQ(list().property("contentX").toReal(), 0);
    EXPECT_EQ(list().property("contentY").toReal(), 0);

    const QPointF place = at(200);
    QWheelEvent wheel(place, window().mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &wheel);
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().property("contentY").toReal() > 0; }));
}

TEST_F(LatencyGraphOnScreen, TheKeysMoveTheSelectionOnceTabHasLedThere)
{
    KitWindow::press(Qt::Key_Tab);
    ASSERT_TRUE(graph().hasActiveFocus());
    EXPECT_EQ(type(Qt::Key_Right), 0);
    EXPECT_EQ(type(Qt::Key_Right), 1);
    EXPECT_EQ(type(Qt::Key_End), 10);
    EXPECT_EQ(type(Qt::Key_Left), 9);
    EXPECT_EQ(type(Qt::Key_PageDown), 8);
    EXPECT_EQ(type(Qt::Key_PageUp), 9);
    EXPECT_EQ(type(Qt::Key_Home), 0);
    EXPECT_EQ(type(Qt::Key_Left), 0);
}

TEST_F(LatencyGraphOnScreen, AKeyThatIsNotItsOwnGoesOn)
{
    graph().forceActiveFocus(Qt::TabFocusReason);
    type(Qt::Key_Left, Qt::AltModifier);
    type(Qt::Key_Up);
    type(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(property("selections").toInt(), 0);
}

TEST_F(LatencyGraphOnScreen, HasARingForTheKeyboardAndNoneForThePointer)
{
    const auto hasRing = [this] {
        return std::ranges::any_of(graph().childItems(),
            [](const QQuickItem* child) { return child->property("holder").isValid() && child->isVisible(); });
    };
    press(100);
    release(100);
    EXPECT_TRUE(graph().hasActiveFocus());
    EXPECT_FALSE(hasRing());
    type(Qt::Key_Right);
    EXPECT_TRUE(hasRing());
}

TEST_F(LatencyGraphOnScreen, IsASliderToAScreenReaderWithLabelHintAndTheSelectedValue)
{
    EXPECT_EQ(accessible().role(), QAccessible::Slider);
    EXPECT_EQ(accessible().text(QAccessible::Name), QStringLiteral("Latency graph"));
    EXPECT_EQ(accessible().text(QAccessible::Description), QStringLiteral("Select a point to show its latency value"));
    EXPECT_TRUE(accessible().state().focusable);
    EXPECT_EQ(texts(), QStringList());

    select(3);
    ASSERT_NE(accessible().valueInterface(), nullptr);
    EXPECT_EQ(accessible().valueInterface()->currentValue().toDouble(), 40);
    EXPECT_EQ(accessible().valueInterface()->minimumValue().toDouble(), 0);
    EXPECT_EQ(accessible().valueInterface()->maximumValue().toDouble(), 120);
    EXPECT_EQ(texts(), QStringList({"40 ms"}));
}

TEST_F(LatencyGraphOnScreen, ShowsTheTimeOfASampleThatHasOne)
{
    select(10);
    EXPECT_EQ(texts(), QStringList({"110 ms", "01-01 00:00"}));
    EXPECT_EQ(names(QAccessible::ToolTip), QStringList({"110 ms, 01-01 00:00"}));
}

TEST_F(LatencyGraphOnScreen, AScreenReaderCanMoveTheSelection)
{
    auto* const actions = accessible().actionInterface();
    actions->doAction(QAccessibleActionInterface::increaseAction());
    takeSelection();
    EXPECT_EQ(selected_, 0);
    actions->doAction(QAccessibleActionInterface::increaseAction());
    takeSelection();
    EXPECT_EQ(selected_, 1);
    actions->doAction(QAccessibleActionInterface::decreaseAction());
    takeSelection();
    EXPECT_EQ(selected_, 0);
}

TEST_F(LatencyGraphOnScreen, TellsOfEachChangeOfItsValue)
{
    // The signal that Qt passes on to a listening screen reader.
    const QSignalSpy told(&graph(), SIGNAL(valueChanged()));
    select(3);
    select(4);
    EXPECT_EQ(told.count(), 2);
}

class CalloutOfALatencyGraph : public LatencyGraphOnScreen {
protected:
    const QQuickItem& callout() const { return *graph().childItems().constLast(); }
    qreal middle() const { return callout().x() + callout().width() / 2; }
};

TEST_F(CalloutOfALatencyGraph, FloatsAboveTheRuleAndStaysInsideFromSideToSide)
{
    select(5);
    EXPECT_LT(callout().y() + callout().height(), 0);
    EXPECT_NEAR(middle(), 204, 1);
    select(0);
    EXPECT_EQ(callout().x(), 0);
    select(10);
    EXPECT_NEAR(callout().x() + callout().width(), 408, 1);
}

TEST_F(CalloutOfALatencyGraph, IsNotThereWithoutASelection)
{
    EXPECT_FALSE(callout().isVisible());
}

}  // namespace

}  // namespace larkspan
