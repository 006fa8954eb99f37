#include <QFontMetricsF>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ChosenSize.h"
#include "ComponentsOnScreen.h"
#include "IncidentsOnScreen.h"
#include "MaintenancesOnScreen.h"
#include "Measures.h"
#include "MonitorsOnScreen.h"

namespace larkspan {

namespace {

struct Incidents : IncidentsOnScreen {
    static constexpr auto list = "Incidents";
    void openRecord() { openFirst(); }
};
struct Monitors : MonitorsOnScreen {
    static constexpr auto list = "Monitors";
    void openRecord()
    {
        item(Role::List, QStringLiteral("Monitors")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
    }
};
struct Components : ComponentsOnScreen {
    using Role = QAccessible::Role;
    static constexpr auto list = "Components";
    void openRecord() { open(); }
};
struct Maintenances : MaintenancesOnScreen {
    static constexpr auto list = "Maintenances";
    void openRecord() { openFirst(); }
};

QQuickItem* valueOf(const QQuickItem& item, const char* property)
{
    return item.property(property).value<QQuickItem*>();
}

template <typename OnScreen>
class Grid : public OnScreen {
protected:
    using Role = QAccessible::Role;

    Grid() { this->window().resize(760, 600); }

    QQuickWindow& window() { return this->mainWindow.window(); }

    void resize(int width, int height)
    {
        window().resize(width, height);
        this->settle();
    }
    void openOverview() { this->press(Qt::Key_1, Qt::ControlModifier); }
    void openDashboard() { this->press(Qt::Key_Escape); }

    /// The header of the uppermost screen.
    const QQuickItem& header()
    {
        const QQuickItem* found = nullptr;
        this->visit([&found](QQuickItem& each) {
            if (each.isVisible() && each.property("statusRoom").isValid()) found = &each;
        });
        return *found;
    }
    /// The list or the column that fills the uppermost screen.
    const QQuickItem& scrolling()
    {
        const QQuickItem* found = nullptr;
        const double most = window().height() - frameOf(header()).bottom() - 200;
        this->visit([&](QQuickItem& each) {
            const bool isContent = each.inherits("QQuickFlickable") && each.property("widest").isValid();
            if (isContent && each.isVisible() && each.height() > most) found = &each;
        });
        return *found;
    }
    /// Where its content begins while it is not scrolled.
    double contentTop()
    {
        if (auto* const above = valueOf(scrolling(), "headerItem")) return frameOf(*above).top();
        const auto* const content = valueOf(scrolling(), "contentItem");
        double top = window().height();
        for (const auto* const each : content->childItems()) {
            if (each->inherits("QQuickColumn")) top = std::min(top, frameOf(*each).top());
        }
        return top;
    }
    /// The place of all cards of the uppermost screen, from its left to its right edge.
    QRectF column()
    {
        QRectF whole;
        const auto& all = scrolling();
        this->visit([&](QQuickItem& each) {
            if (!each.isVisible() || each.property("radius").toInt() != 12 || !all.isAncestorOf(&each)) return;
            whole |= frameOf(each);
        });
        return whole;
    }
};

template <typename OnScreen>
class TabGrid : public Grid<OnScreen> {
protected:
    const QQuickItem& tabs() { return *this->item(QAccessible::PageTabList, QStringLiteral("View")).parentItem(); }
};

using EachTab = testing::Types<Incidents, Monitors, Components, Maintenances>;
TYPED_TEST_SUITE(TabGrid, EachTab);

TYPED_TEST(TabGrid, HasItsTabsSixteenPointsFromTheHeaderAndItsContentTwentyBelowThem)
{
    EXPECT_EQ(gapBelow(this->header(), this->tabs()), 16);
    EXPECT_EQ(this->contentTop() - frameOf(this->tabs()).bottom(), 20);
    this->openOverview();
    EXPECT_EQ(gapBelow(this->header(), this->tabs()), 16);
    EXPECT_EQ(this->contentTop() - frameOf(this->tabs()).bottom(), 20);
}

TYPED_TEST(TabGrid, HasItsDetailTwentyPointsFromTheHeader)
{
    this->openRecord();
    EXPECT_EQ(this->contentTop() - frameOf(this->header()).bottom(), 20);
}

TYPED_TEST(TabGrid, HasListOverviewDetailAndDashboardInOneColumn)
{
    const auto expectColumn = [this](const char* screen) {
        for (const int width : {480, 760, 900, 1600}) {
            this->resize(width, 700);
            const auto column = this->column();
            EXPECT_EQ(column.width(), std::min(880, width - 40)) << screen << " at " << width;
            EXPECT_EQ(column.center().x(), width / 2.0) << screen << " at " << width;
            EXPECT_EQ(frameOf(this->scrolling()).width(), width) << screen << " at " << width;
        }
    };
    expectColumn(this->list);
    this->openRecord();
    expectColumn("the detail");
    this->openDashboard();
    this->openOverview();
    expectColumn("the overview");
    this->openDashboard();
    expectColumn("the dashboard");
}

TYPED_TEST(TabGrid, HasAnInsetOfSixteenPointsInItsRows)
{
    double left = 0;
    double right = 0;
    for (const auto& thing : this->things()) {
        if (thing.role != QAccessible::ListItem) continue;
        auto& row = *qobject_cast<QQuickItem*>(thing.object);
        const auto& content = *valueOf(row, "contentItem");
        left = frameOf(content).left() - frameOf(row).left();
        right = frameOf(row).right() - frameOf(content).right();
        EXPECT_EQ(left, 16) << thing.name.toStdString();
        EXPECT_EQ(right, 16) << thing.name.toStdString();
    }
    EXPECT_GT(left, 0);
}

/// In the smallest window with large letters.
template <typename OnScreen>
class SmallTab : public LargeLetters, public Grid<OnScreen> {
protected:
    SmallTab() { this->resize(480, 440); }
};
TYPED_TEST_SUITE(SmallTab, EachTab);

TYPED_TEST(SmallTab, LeavesTwoThirdsOfTheWindowToItsContent)
{
    EXPECT_LE(this->header().height(), 80);
    EXPECT_LE(this->contentTop(), 160);
    this->openOverview();
    EXPECT_LE(this->contentTop(), 160);
}

using LargeIncidents = Grid<Incidents>;
class DotsInLargeLetters : public LargeLetters, public LargeIncidents {};

TEST_F(DotsInLargeLetters, GrowWithTheFont)
{
    const auto& row = item(Role::ListItem, QStringLiteral("Login errors"));
    EXPECT_EQ(partOf(row, "radius", 10)->width(), 20);
}

using ComponentGrid = Grid<Components>;
class NarrowRows : public LargeLetters, public ComponentGrid {
protected:
    NarrowRows()
    {
        resize(480, 440);
        serve({component("1", "Authentication",
            R"(, "monitor_state": "degradedperformance", "description": "Signs customers in: internationalisation")")});
        press(Qt::Key_F5);
    }
};

TEST_F(NarrowRows, BreakNoWordAndHaveTheStatusBelowTheWords)
{
    const auto& row = item(Role::ListItem, QStringLiteral("Authentication"));
    const auto& text = *partOf(row, "text", QStringLiteral("Signs customers in: internationalisation"));
    EXPECT_GT(text.property("lineCount").toInt(), 1);
    EXPECT_LE(QFontMetricsF(fontOf(text)).horizontalAdvance(QStringLiteral("internationalisation")), text.width());
    const auto& pill = *partOf(row, "text", QStringLiteral("Degradedperformance"));
    EXPECT_FALSE(pill.property("truncated").toBool());
    EXPECT_FALSE(partOf(row, "text", QStringLiteral("Authentication"))->property("truncated").toBool());
    EXPECT_GE(frameOf(pill).top(), frameOf(text).bottom());
}

class Headings : public Grid<Components> {};

TEST_F(Headings, AreFlushWithWhatTheyHead)
{
    const auto& heading = *partOf(item(Role::Heading, QStringLiteral("Core")), "text", QStringLiteral("Core"));
    EXPECT_EQ(frameOf(heading).left(), column().left());
    openDashboard();
    EXPECT_EQ(frameOf(item(Role::Heading, QStringLiteral("Status Pages"))).left(), column().left());
}

}  // namespace

}  // namespace larkspan
