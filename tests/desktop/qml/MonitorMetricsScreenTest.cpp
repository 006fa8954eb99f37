#include <QElapsedTimer>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "MonitorsOnScreen.h"

namespace larkspan {

namespace {

TEST_F(MonitorsOnScreen, MetricsOpenBelowTheRowAndCloseToTheCompactLine)
{
    transport.script(metricsURL, 200, day);
    choose("Show latency graph");
    for (const auto* const text : {"Avg Response", "312 ms", "99.98%", "Region States", "Frankfurt", "121ms"}) {
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    }
    EXPECT_FALSE(shows(QStringLiteral("312ms")));
    EXPECT_EQ(focused(), QStringLiteral("Hide latency graph"));

    press(Qt::Key_Space);
    EXPECT_TRUE(shows(QStringLiteral("312ms")));
    EXPECT_TRUE(shows(QStringLiteral("Avg")));
    EXPECT_FALSE(shows(QStringLiteral("Region States")));
    press(Qt::Key_Space);
    EXPECT_TRUE(shows(QStringLiteral("Region States")));
    EXPECT_EQ(sent(), Lines{"GET " + metricsURL});
}

TEST_F(MonitorsOnScreen, SamplesOfTheGraphAreReachedByTabAndArrowsAndStaySelectedWhileItIsClosed)
{
    transport.script(metricsURL, 200, day);
    choose("Show latency graph");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("Latency graph"));
    press(Qt::Key_Right);
    EXPECT_TRUE(shows(QStringLiteral("180 ms")));
    press(Qt::Key_Right);
    EXPECT_TRUE(shows(QStringLiteral("240 ms")));

    choose("Hide latency graph");
    EXPECT_FALSE(shows(QStringLiteral("240 ms")));
    choose("Show latency graph");
    EXPECT_TRUE(shows(QStringLiteral("240 ms")));
}

TEST_F(MonitorsOnScreen, APressOnTheGraphSelectsTheSampleUnderIt)
{
    transport.script(metricsURL, 200, day);
    choose("Show latency graph");
    const auto& graph = item(Role::Slider, QStringLiteral("Latency graph"));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, graph.mapToScene({graph.width() - 9, 30}).toPoint());
    settle();
    EXPECT_TRUE(shows(QStringLiteral("210 ms")));
}

TEST_F(MonitorsOnScreen, MetricsThatAreLoadedSayTwiceThatTheyAre)
{
    choose("Show latency graph");
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Loading monitor metrics…")));
    EXPECT_FALSE(isEnabled("Hide latency graph"));
}

TEST_F(MonitorsOnScreen, MetricsThatFailSayWhyInTheRowAndAreTriedAgain)
{
    transport.script(metricsURL, 200, R"({"metrics": {}})");
    choose("Show latency graph");
    EXPECT_TRUE(shows(QStringLiteral("The server returned no metrics for this monitor.")));
    EXPECT_FALSE(asks("Error"));
    transport.script(metricsURL, 200, day);
    choose("Retry");
    EXPECT_TRUE(shows(QStringLiteral("Frankfurt")));
}

TEST_F(MonitorsOnScreen, OneThatLeavesTheListWhileItsMetricsAreOpenTakesThemAlong)
{
    transport.script(metricsURL, 200, day);
    choose("Show latency graph");
    serve({monitor("2", "Mail", paused)});
    press(Qt::Key_F5);
    EXPECT_EQ(names(Role::ListItem), QStringList{"Mail"});
    EXPECT_FALSE(shows(QStringLiteral("Frankfurt")));

    serve({monitor("1", "Gateway"), monitor("2", "Mail", paused)});
    press(Qt::Key_F5);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Gateway", "Mail"}));
    EXPECT_FALSE(shows(QStringLiteral("Frankfurt"))) << "it is closed";
}

TEST_F(MonitorsOnScreen, ARowThatScrollsOutOfSightAndBackKeepsItsMetricsAndStaysOpen)
{
    Lines many;
    for (int number = 1; number <= 200; ++number) {
        many.push_back(monitor(std::to_string(number), "Monitor " + std::to_string(number)));
    }
    serve(many);
    transport.script(metricsURL, 200, day);
    press(Qt::Key_F5);
    choose("Show latency graph");
    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_FALSE(shows(QStringLiteral("Frankfurt")));
    press(Qt::Key_Home);
    EXPECT_TRUE(shows(QStringLiteral("Frankfurt")));
    EXPECT_EQ(std::ranges::count(sent(), "GET " + metricsURL), 1);
}

TEST_F(MonitorsOnScreen, ABadgeIsNeverWiderThanItsRow)
{
    const std::string trend(300, 'w');
    transport.script(metricsURL, 200,
        R"({"metrics": {"1": {"avg_ms": 1e300, "uptime_percentage": -1e300, "response_time_trend": ")" + trend
            + R"("}}})");
    choose("Show latency graph");
    choose("Hide latency graph");
    const auto& row = item(Role::ListItem, QStringLiteral("Gateway"));
    int badges = 0;
    visit([&](QQuickItem& each) {
        if (!each.isVisible() || !each.property("badge").isValid()) return;
        ++badges;
        const auto left = each.mapToItem(&row, {0, 0}).x();
        EXPECT_GE(left, 0);
        EXPECT_LE(left + each.width(), row.width());
        for (auto* const label : each.findChildren<QQuickItem*>()) {
            EXPECT_LE(label->mapToItem(&each, {label->width(), 0}).x(), each.width() + 0.5);
        }
    });
    EXPECT_EQ(badges, 3);
}

TEST_F(MonitorsOnScreen, ARowThatOpensIsHighlightedInItsWholeHeightAtOnce)
{
    transport.script(metricsURL, 200, day);
    choose("Show latency graph");
    const auto* const highlight = list().property("highlightItem").value<QQuickItem*>();
    const auto* const current = list().property("currentItem").value<QQuickItem*>();
    ASSERT_TRUE(highlight && current);
    EXPECT_EQ(highlight->height(), current->height());
}

TEST_F(MonitorsOnScreen, TheDotOfARegionSaysItsStateInAWord)
{
    transport.script(metricsURL, 200, day);
    choose("Show latency graph");
    EXPECT_TRUE(names(Role::Graphic).contains(QStringLiteral("Up")));
}

TEST_F(MonitorsOnScreen, OfTwentyThousandRegionsThePanelShowsTheFirstAndSaysHowManyMoreThereAre)
{
    std::string regions;
    for (int number = 0; number < 20'000; ++number) {
        regions += (number == 0 ? "" : ",") + std::string(R"({"region_id": "region )") + std::to_string(number)
            + R"(", "status": "up", "avg_ms": 1e300})";
    }
    transport.script(metricsURL, 200, R"({"metrics": {"1": {"region_states": [)" + regions + "]}}}");
    QElapsedTimer timer;
    timer.start();
    choose("Show latency graph");
    EXPECT_LT(timer.elapsed(), 2'000);
    EXPECT_TRUE(shows(QStringLiteral("region 99")));
    EXPECT_FALSE(shows(QStringLiteral("region 100")));
    EXPECT_TRUE(shows(QStringLiteral("and 19900 more")));
    const auto& name = item(Role::StaticText, QStringLiteral("region 99"));
    EXPECT_GT(name.width(), 0) << "the figure leaves the name its place";
}

}  // namespace

}  // namespace larkspan
