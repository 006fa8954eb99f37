#include <gtest/gtest.h>

#include "Measures.h"
#include "MonitorsOnScreen.h"
#include "monitors/StatusPageMonitorsView.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan {

namespace {

class MonitorDetailLayout : public MonitorsOnScreen {
protected:
    /// The service reports no time of a last check, so the record is given one here.
    MonitorDetailLayout()
    {
        auto& opened = *(*dashboard->openedPage)->monitors()->viewModel;
        auto monitors = *opened.records;
        monitors.front().lastCheckTime = model::readISO8601("2026-11-20T08:30:00Z");
        opened.records = monitors;
        choose("Monitor Details");
    }

    QQuickItem& label(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }
    QQuickItem& heading(const char* text) const { return item(Role::Heading, QString::fromUtf8(text)); }
    const QQuickItem& group(const char* title) const { return *heading(title).parentItem()->parentItem(); }
};

TEST_F(MonitorDetailLayout, HasItsLargeTitleEightPointsOverItsPills)
{
    const auto& title = heading("Gateway");
    EXPECT_EQ(title.height(), 34);
    EXPECT_EQ(fontOf(title).weight(), QFont::Bold);
    EXPECT_EQ(sizeOf(title), type::title);
    EXPECT_EQ(gapBelow(title, shapeAround(label("Operational"))), 8);
    EXPECT_EQ(gapBeside(shapeAround(label("Operational")), shapeAround(label("HTTP"))), 8);
    for (const auto* const word : {"Operational", "HTTP"}) {
        const auto pill = PillMeasures::of(label(word));
        EXPECT_EQ(pill.beside, 10) << word;
        EXPECT_EQ(pill.aboveAndBelow, 5) << word;
        EXPECT_EQ(pill.tint, 0.15) << word;
    }
    EXPECT_EQ(colorOf(label("Operational")), light::green);
    EXPECT_EQ(colorOf(label("HTTP")), light::secondary);
}

TEST_F(MonitorDetailLayout, HasTwentyPointsBetweenItsBlocks)
{
    const auto& header = *heading("Gateway").parentItem();
    const auto* actions = &item(Role::Button, QStringLiteral("Pause Monitor"));
    while (!actions->property("isDivisible").isValid()) actions = actions->parentItem();
    EXPECT_EQ(gapBelow(header, group("Details")), 20);
    EXPECT_EQ(gapBelow(group("Details"), group("Last Check")), 20);
    EXPECT_EQ(gapBelow(group("Last Check"), *actions), 20);
}

TEST_F(MonitorDetailLayout, HasTheTimeOfTheLastCheckBehindItsDate)
{
    const auto& date = label("2026-11-20");
    const auto& time = label("08:30");
    EXPECT_GT(gapBeside(date, time), 0);
    EXPECT_EQ(colorOf(date), light::primary);
    EXPECT_EQ(colorOf(time), light::secondary);
}

TEST_F(MonitorDetailLayout, HasItsActionsInTheirColors)
{
    const auto ground = [this](const char* button) {
        return colorOf(*partOf(item(Role::Button, QString::fromUtf8(button)), "radius", 8.0));
    };
    EXPECT_EQ(ground("Pause Monitor"), light::orange);
    EXPECT_EQ(ground("Run Check"), light::blue);
}

TEST_F(MonitorDetailLayout, IsCoveredByBlackAtAFifthWithAnIndicatorOneAndAHalfTimesItsSize)
{
    item(Role::Button, QStringLiteral("Run Check")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    const auto& indicator = item(Role::ProgressBar, QStringLiteral("In progress"));
    EXPECT_EQ(indicator.width(), 1.5 * indicator.implicitWidth());
    EXPECT_EQ(indicator.height(), 1.5 * indicator.implicitHeight());
    const auto& ground = *indicator.parentItem();
    EXPECT_EQ(ground.property("radius").toInt(), 12);
    EXPECT_EQ(frameOf(indicator), frameOf(ground).adjusted(24, 24, -24, -24));
    const auto veil = colorOf(*ground.parentItem());
    EXPECT_EQ(veil.rgb(), QColor(Qt::black).rgb());
    EXPECT_NEAR(veil.alphaF(), 0.2, 0.001);
    EXPECT_EQ(frameOf(*ground.parentItem()), QRectF(0, 0, window().width(), window().height()));
}

}  // namespace

}  // namespace larkspan
