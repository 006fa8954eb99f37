#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

#include "ChosenSize.h"
#include "Measures.h"
#include "MonitorsOnScreen.h"

namespace larkspan {

namespace {

const std::string trends = R"({"metrics": {"1": {"avg_ms": 312, "uptime_percentage": 99.5, "response_time_trend": "up",
    "latency": [180, 240, 210]}}})";
const QString longName = QStringLiteral("Name server with a name that goes on and on, far beyond what a window holds");

/// The row of a monitor, by its parts.
class MonitorRowLayout : public MonitorsOnScreen {
protected:
    QQuickItem& label(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }
    QQuickItem& button(const char* name) const { return item(Role::Button, QString::fromUtf8(name)); }
    QQuickItem& graph() const { return item(Role::Slider, QStringLiteral("Latency graph")); }
    double middle(const QQuickItem& part) const { return frameOf(part).center().y(); }

    void openMetrics()
    {
        transport.script(metricsURL, 200, trends);
        choose("Show latency graph");
    }
    void select(Qt::Key key)
    {
        graph().forceActiveFocus(Qt::TabFocusReason);
        press(key);
    }
};

TEST_F(MonitorRowLayout, HasTheSignOfItsDetailsWhereItsValuesEnd)
{
    openMetrics();
    const auto& sign = *partOf(button("Monitor Details"), "name", QStringLiteral("info.circle"));
    EXPECT_EQ(frameOf(sign).right(), frameOf(label("312 ms")).right());
}

TEST_F(MonitorRowLayout, HasAllItsBadgesInOneHeight)
{
    openMetrics();
    choose("Hide latency graph");
    const auto figure = frameOf(shapeAround(label("312ms")));
    const auto trend = frameOf(shapeAround(label("Up")));
    EXPECT_EQ(trend.top(), figure.top());
    EXPECT_EQ(trend.height(), figure.height());
    EXPECT_NEAR(middle(label("Up")), trend.center().y(), 1);
}

TEST_F(MonitorRowLayout, HasRoomForTheCalloutBetweenItsHeaderAndTheGraph)
{
    openMetrics();
    const auto before = frameOf(graph());
    for (const auto key : {Qt::Key_Home, Qt::Key_End}) {
        select(key);
        const auto& callout
            = item(Role::ToolTip, key == Qt::Key_Home ? QStringLiteral("180 ms") : QStringLiteral("210 ms"));
        for (const auto* const part : {"Operational", "Gateway"})
            EXPECT_GE(frameOf(callout).top(), frameOf(label(part)).bottom()) << part;
        for (const auto* const part : {"Hide latency graph", "Monitor Details"})
            EXPECT_GE(frameOf(callout).top(), frameOf(button(part)).bottom()) << part;
        EXPECT_LT(frameOf(callout).bottom(), frameOf(graph()).top());
        EXPECT_EQ(frameOf(graph()), before) << "nothing moves under the pointer";
    }
}

TEST_F(MonitorRowLayout, ACutNameIsToldWholeByItsToolTip)
{
    const auto isTold = [](const QQuickItem& name) {
        return std::ranges::any_of(name.findChildren<QObject*>(), [](const QObject* each) {
            return each->inherits("QQuickToolTip") && each->property("visible").toBool()
                && each->property("text").toString() == longName;
        });
    };
    window().resize(480, 440);
    serve({monitor("1", longName.toStdString())});
    reenter();
    const auto& name = item(Role::StaticText, longName);
    ASSERT_TRUE(name.property("truncated").toBool());
    QTest::mouseMove(&window(), frameOf(name).center().toPoint());
    EXPECT_TRUE(QTest::qWaitFor([&] { return isTold(name); }, 3'000));

    window().resize(1'200, 440);
    settle();
    ASSERT_FALSE(name.property("truncated").toBool());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isTold(name); }, 3'000)) << "it is seen whole";
}

class NarrowMonitorRow : public LargeLetters, public MonitorRowLayout {
protected:
    NarrowMonitorRow()
    {
        window().resize(480, 440);
        serve({monitor("1", longName.toStdString()), monitor("2", "Mail", paused)});
        reenter();
    }
};

TEST_F(NarrowMonitorRow, HasItsTypeBesideItsStatusAndLeavesItsNameTheRoom)
{
    const auto& name = item(Role::StaticText, longName);
    const auto& status = label("Operational");
    const auto& pill = shapeAround(label("HTTP"));
    EXPECT_GT(name.width(), 240);
    EXPECT_EQ(gapBeside(status, pill), 8);
    EXPECT_NEAR(middle(status), middle(pill), 1);
    EXPECT_GE(frameOf(pill).top(), frameOf(name).bottom());
    EXPECT_LE(frameOf(pill).right(), frameOf(name).right());
}

TEST_F(NarrowMonitorRow, IsReadInTheSameOrderAsAWideOne)
{
    QStringList read;
    for (const auto& thing : things()) {
        if (thing.role == Role::StaticText || thing.role == Role::Button) read << thing.name;
    }
    const auto first = read.indexOf(longName);
    ASSERT_GE(first, 0);
    EXPECT_EQ(
        read.mid(first, 5), (QStringList{longName, "Operational", "HTTP", "Show latency graph", "Monitor Details"}));
    window().resize(1'000, 440);
    settle();
    EXPECT_NEAR(middle(label("HTTP")), middle(button("Monitor Details")), 1);
    window().resize(480, 440);
    settle();
    EXPECT_GT(middle(label("HTTP")), middle(item(Role::StaticText, longName)) + 10);
}

}  // namespace

}  // namespace larkspan
