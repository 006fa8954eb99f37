#include <gtest/gtest.h>

#include "MaintenancesOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

class MaintenanceLayout : public MaintenancesOnScreen {
protected:
    MaintenanceLayout()
    {
        serve({work(
            "1", "Upgrade", isScheduled + R"(, "message": "We **upgrade**.", "created_at": "2026-11-19T10:00:00Z")")});
        press(Qt::Key_F5);
    }

    QQuickItem& label(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }
    QQuickItem& heading(const char* text) const { return item(Role::Heading, QString::fromUtf8(text)); }
    const QQuickItem& group(const char* title) const { return *heading(title).parentItem()->parentItem(); }
};

TEST_F(MaintenanceLayout, OfARowIsADotTheTitleOverBadgeAndDateAndAChevron)
{
    const auto& row = item(Role::ListItem, QStringLiteral("Upgrade"));
    const auto& title = label("Upgrade");
    const auto& dot = *partOf(row, "radius", 5);
    EXPECT_EQ(dot.width(), 10);
    EXPECT_EQ(dot.height(), 10);
    EXPECT_EQ(colorOf(dot), light::blue);
    EXPECT_EQ(gapBeside(dot, title), 12);
    EXPECT_EQ(title.height(), 22);
    EXPECT_EQ(fontOf(title).weight(), QFont::DemiBold);
    EXPECT_EQ(sizeOf(title), type::body);

    const auto& chevron = *partOf(row, "name", QStringLiteral("chevron.right"));
    EXPECT_EQ(chevron.width(), 13);
    EXPECT_EQ(colorOf(chevron), light::secondary);
    EXPECT_EQ(frameOf(row).right() - frameOf(chevron).right(), 16);
}

TEST_F(MaintenanceLayout, OfARowHasItsBadgeTwoPointsBelowTheTitle)
{
    EXPECT_EQ(gapBelow(label("Upgrade"), shapeAround(label("Scheduled"))), 2);
    EXPECT_EQ(PillMeasures::of(label("Scheduled")),
        (PillMeasures{.beside = 6, .aboveAndBelow = 2, .size = type::caption2, .weight = QFont::Bold, .tint = 0.15}));
    EXPECT_EQ(colorOf(label("Scheduled")), light::blue);
    EXPECT_EQ(sizeOf(label("2026-11-20")), type::caption);
    EXPECT_EQ(colorOf(label("2026-11-20")), light::secondary);
    EXPECT_GT(gapBeside(shapeAround(label("Scheduled")), label("2026-11-20")), 0);
}

TEST_F(MaintenanceLayout, OfNoneIsASymbolOverATitleThatIsNotBold)
{
    serve({});
    press(Qt::Key_F5);
    const auto& title = heading("No scheduled maintenances");
    EXPECT_EQ(fontOf(title).weight(), QFont::Normal);
    EXPECT_EQ(sizeOf(title), type::title3);
    const auto& symbol = *partOf(*title.parentItem(), "name", QStringLiteral("calendar.badge.clock"));
    EXPECT_EQ(symbol.width(), 40);
    EXPECT_EQ(colorOf(symbol), light::secondary);
    EXPECT_EQ(colorOf(label("Maintenance windows will appear here.")), light::secondary);
}

TEST_F(MaintenanceLayout, OfADetailIsItsTitleOverItsPill)
{
    openFirst();
    const auto& title = *partOf(*window().contentItem(), "layoutHeight", 34);
    EXPECT_EQ(title.height(), 34);
    EXPECT_EQ(sizeOf(title), type::title2);
    EXPECT_EQ(fontOf(title).weight(), QFont::Bold);
    EXPECT_EQ(PillMeasures::of(label("Scheduled")),
        (PillMeasures{
            .beside = 10, .aboveAndBelow = 5, .size = type::subheadline, .weight = QFont::Normal, .tint = 0.15}));
    EXPECT_EQ(colorOf(label("Scheduled")), light::blue);
}

TEST_F(MaintenanceLayout, OfADetailHasTwentyPointsBetweenItsGroups)
{
    openFirst();
    EXPECT_EQ(gapBelow(shapeAround(label("Scheduled")), group("Timeline")), 20);
    const auto& timeline = *heading("Timeline").parentItem()->parentItem();
    EXPECT_EQ(gapBelow(timeline, group("Description")), 20);
}

TEST_F(MaintenanceLayout, OfATimelineHasRowsEightPointsApart)
{
    openFirst();
    EXPECT_EQ(gapBelow(*label("Scheduled Start").parentItem(), *label("Scheduled End").parentItem()), 8);
}

TEST_F(MaintenanceLayout, OfADetailHasItsActionsInTheirColors)
{
    openFirst();
    const auto& start = item(Role::Button, QStringLiteral("Start Maintenance"));
    const auto& removal = item(Role::Button, QStringLiteral("Delete Maintenance"));
    EXPECT_EQ(colorOf(*partOf(start, "radius", 8.0)), light::yellow);
    EXPECT_EQ(colorOf(*partOf(removal, "name", QStringLiteral("trash"))), light::red);
    EXPECT_LT(frameOf(start).right(), frameOf(removal).left());
}

TEST_F(MaintenanceLayout, OfATimelineIsASmallSymbolALabelAndTheDateBeforeItsTime)
{
    openFirst();
    const auto& label = this->label("Scheduled Start");
    const auto& line = *label.parentItem();
    const auto& symbol = *partOf(line, "name", QStringLiteral("calendar.badge.clock"));
    EXPECT_EQ(symbol.width(), 13);
    EXPECT_EQ(colorOf(symbol), light::secondary);
    EXPECT_GE(frameOf(label).left() - frameOf(line).left(), 16);
    EXPECT_EQ(colorOf(label), light::secondary);
    const auto& date = *partOf(line, "text", QStringLiteral("2026-11-20"));
    const auto& time = *partOf(line, "text", QStringLiteral("10:00"));
    EXPECT_EQ(colorOf(date), light::primary);
    EXPECT_EQ(colorOf(time), light::secondary);
    EXPECT_EQ(frameOf(time).right(), frameOf(line).right());
    for (const auto* const text : {static_cast<const QQuickItem*>(&label), static_cast<const QQuickItem*>(&date),
             static_cast<const QQuickItem*>(&time)}) {
        EXPECT_EQ(sizeOf(*text), type::subheadline);
    }
}

}  // namespace

}  // namespace larkspan
