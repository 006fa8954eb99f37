#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "KitWindow.h"

namespace larkspan {

namespace {

/// A column in the upper half of a window, as long as its one thing.
class BarOfAColumn : public testing::Test, public KitWindow {
protected:
    BarOfAColumn()
        : KitWindow(QStringLiteral(R"(
            property real length: 20
            ScrollingColumn {
                objectName: "column"
                width: parent.width
                height: 200
                name: "Column"
                takesFocus: true
                Item { width: 10; height: window.length }
            })"))
    {
    }

    /// The bars that exist.
    QList<QQuickItem*> bars() const
    {
        QList<QQuickItem*> found;
        for (auto* const each : window().findChildren<QQuickItem*>()) {
            if (each->inherits("QQuickScrollBar")) found << each;
        }
        return found;
    }

    QRectF barPlace() const { return placeOf(*bars().constFirst()); }
    QRectF handle() const { return placeOf(*bars().constFirst()->property("contentItem").value<QQuickItem*>()); }
    static QRectF placeOf(const QQuickItem& item) { return item.mapRectToScene({0, 0, item.width(), item.height()}); }

    QQuickItem& column() const { return item(QStringLiteral("column")); }
    qreal place() const { return column().property("contentY").toReal(); }
    qreal most() const { return column().property("contentHeight").toReal() - column().height(); }
    void grow() { setProperty("length", 1'000); }
};

TEST_F(BarOfAColumn, IsMadeOnceThereIsMoreThanIsSeen)
{
    EXPECT_TRUE(bars().isEmpty());
    grow();
    ASSERT_EQ(bars().size(), 1);
    EXPECT_TRUE(bars().constFirst()->isVisible());
    setProperty("length", 20);
    EXPECT_FALSE(bars().constFirst()->isVisible());
    grow();
    EXPECT_EQ(bars().size(), 1) << "it is kept";
    EXPECT_TRUE(bars().constFirst()->isVisible());
}

TEST_F(BarOfAColumn, StandsAtItsEndAsHighAsTheColumn)
{
    grow();
    EXPECT_EQ(barPlace().topRight(), QPointF(480, 0));
    EXPECT_EQ(barPlace().height(), 200);
    window().resize(600, 440);
    column().setHeight(300);
    settle();
    EXPECT_EQ(barPlace().topRight(), QPointF(600, 0));
    EXPECT_EQ(barPlace().height(), 300);
}

TEST_F(BarOfAColumn, ShowsWhereTheColumnStands)
{
    grow();
    const auto share = 200 / column().property("contentHeight").toReal();
    EXPECT_NEAR(handle().height(), share * 200, 4);
    EXPECT_NEAR(handle().top(), 0, 4);
    column().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_NEAR(handle().bottom(), 200, 4);
}

TEST_F(BarOfAColumn, HasAHandleThatCanBeSeenAndHitHoweverLongTheColumn)
{
    setProperty("length", 100'000);
    EXPECT_NEAR(handle().height(), 24, 0.5);
    column().setHeight(120);
    settle();
    EXPECT_NEAR(handle().height(), 24, 0.5);
    EXPECT_NEAR(handle().top(), 0, 4);
    column().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_NEAR(handle().bottom(), 120, 4);
}

TEST_F(BarOfAColumn, ScrollsByItsHandle)
{
    grow();
    const auto begin = handle().center().toPoint();
    QTest::mousePress(&window(), Qt::LeftButton, {}, begin);
    for (int way = 10; way <= 300; way += 10) {
        QTest::mouseMove(&window(), begin + QPoint(0, way));
        settle();
    }
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, begin + QPoint(0, 300));
    EXPECT_NEAR(place(), most(), 1);
}

TEST_F(BarOfAColumn, GoesToWhereItIsPressed)
{
    grow();
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(static_cast<int>(barPlace().center().x()), 150));
    settle();
    EXPECT_GT(place(), most() / 2);
    EXPECT_LT(place(), most());
}

TEST_F(BarOfAColumn, LeavesTheWheelToTheColumn)
{
    grow();
    quint64 time = 0;
    for (const auto at : {QPointF(100, 100), barPlace().center()}) {
        const auto before = place();
        QWheelEvent turn(at, window().mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        turn.setTimestamp(time += 1'000);
        QCoreApplication::sendEvent(&window(), &turn);
        EXPECT_TRUE(QTest::qWaitFor([&] { return place() > before + 20; }, 2'000)) << at.x();
        QTest::qWait(300);
    }
}

TEST_F(BarOfAColumn, IsNothingThatAScreenReaderMeets)
{
    grow();
    auto* const access = QAccessible::queryAccessibleInterface(bars().constFirst());
    const auto* const parent = QAccessible::queryAccessibleInterface(&column());
    for (int child = 0; child < parent->childCount(); ++child) EXPECT_NE(parent->child(child), access);
}

}  // namespace

}  // namespace larkspan
