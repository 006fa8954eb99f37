#include <QElapsedTimer>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "Screen.h"

namespace larkspan {

namespace {

using platform::HttpResponse;
using Role = QAccessible::Role;
using Lines = std::vector<std::string>;

const std::string listURL = "https://service.example/user/api/v1/monitors";
const std::string metricsURL = "https://service.example/user/api/monitors/metrics?ids=1&range=24h";
const std::string pauseURL = "https://service.example/user/api/monitors/1/pause";
const std::string resumeURL = "https://service.example/user/api/monitors/1/resume";
const std::string runURL = "https://service.example/user/api/monitors/1/run";

const std::string day = R"({"metrics": {"1": {"avg_ms": 312, "uptime_percentage": 99.98, "latency": [180, 240, 210],
    "region_states": [{"region_id": "eu", "region_name": "Frankfurt", "status": "up", "avg_ms": 121}]}}})";

std::string monitor(const std::string& id, const std::string& name, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "name": ")" + name + R"(", "type": "http", "state": "up", "status_page_id": "a")"
        + rest + "}";
}

const std::string paused = R"(, "enabled": false)";

/// The monitors of page "a", reached and worked with the keyboard alone.
class MonitorsOnScreen : public testing::Test, public Screen {
protected:
    MonitorsOnScreen()
    {
        servePages({"a"}, {});
        serve({monitor("1", "Gateway", R"(, "target": "https://gateway.example/health", "interval_seconds": 300)"),
            monitor("2", "Mail", paused)});
        refresh();
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        enter();
        transport.requests.clear();
    }

    void serve(const Lines& monitors)
    {
        std::string joined;
        for (const auto& each : monitors) joined += (joined.empty() ? "" : ",") + each;
        transport.script(listURL, 200, "[" + joined + "]");
    }

    void enter() { press(Qt::Key_3, Qt::ControlModifier); }

    void reenter()
    {
        press(Qt::Key_1, Qt::ControlModifier);
        enter();
    }

    QQuickItem& list() const { return item(Role::List, QStringLiteral("Monitors")); }

    /// Presses a button as the keyboard does.
    void choose(const char* name)
    {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    QString focused() const
    {
        auto* const holder = QAccessible::queryAccessibleInterface(window().activeFocusItem());
        return holder ? holder->text(QAccessible::Name) : QString();
    }

    bool isEnabled(const char* button) const { return item(Role::Button, QString::fromUtf8(button)).isEnabled(); }
    bool asks(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }

    Lines sent() const
    {
        Lines lines;
        for (const auto& request : transport.requests) lines.push_back(request.method + " " + request.url);
        return lines;
    }

    QQuickWindow& window() const { return mainWindow.window(); }
};

TEST_F(MonitorsOnScreen, AreRowsWithTheirStatusTheirTypeAndTheirButtons)
{
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Gateway", "Mail"}));
    EXPECT_EQ(names(Role::Button).filter(QRegularExpression("^(Show|Monitor|Pause|Resume|Check)")),
        (QStringList{"Show latency graph", "Monitor Details", "Pause", "Check Now", "Show latency graph",
            "Monitor Details", "Resume", "Check Now"}));
    for (const auto* const text : {"Operational", "Paused", "HTTP"})
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
}

TEST_F(MonitorsOnScreen, ThatCannotBeFetchedAreTriedAgainFromTheKeyboard)
{
    transport.script(listURL, 503, "");
    reenter();
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 503.")));
    serve({});
    choose("Retry");
    EXPECT_TRUE(shows(QStringLiteral("No Monitors")));
    EXPECT_TRUE(shows(QStringLiteral("No monitors configured for this status page.")));
}

TEST_F(MonitorsOnScreen, AreFetchedAfreshByF5AndTheAccountIsNot)
{
    serve({monitor("7", "A new one")});
    press(Qt::Key_F5);
    EXPECT_EQ(sent(), Lines{"GET " + listURL});
    EXPECT_EQ(names(Role::ListItem), QStringList{"A new one"});
}

TEST_F(MonitorsOnScreen, TabGoesThroughTheButtonsOfTheCurrentRowAndOfNoOther)
{
    list().forceActiveFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), QStringLiteral("Gateway"));
    QStringList met;
    for (int stop = 0; stop < 5; ++stop) {
        press(Qt::Key_Tab);
        met << focused();
    }
    EXPECT_EQ(met.first(4), (QStringList{"Show latency graph", "Monitor Details", "Pause", "Check Now"}));
    EXPECT_NE(met.last(), QStringLiteral("Show latency graph"));

    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("Resume"));
}

TEST_F(MonitorsOnScreen, OneIsPausedAndItsButtonKeepsTheKeyboard)
{
    transport.script(pauseURL, 200, "");
    serve({monitor("2", "Mail"), monitor("1", "Gateway", paused)});
    choose("Pause");
    EXPECT_EQ(sent(), (Lines{"POST " + pauseURL, "GET " + listURL}));
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Gateway", "Mail"}));
    EXPECT_EQ(focused(), QStringLiteral("Resume"));
    transport.script(resumeURL, 200, "");
    press(Qt::Key_Space);
    EXPECT_EQ(transport.requests[2].url, resumeURL);
}

TEST_F(MonitorsOnScreen, WhileOneIsCheckedItsButtonsCannotBePressedAndThoseOfOthersCan)
{
    choose("Check Now");
    press(Qt::Key_Space);
    EXPECT_FALSE(isEnabled("Pause"));
    EXPECT_FALSE(isEnabled("Check Now"));
    EXPECT_TRUE(isEnabled("Resume"));
    EXPECT_EQ(sent(), Lines{"POST " + runURL});
    transport.answer(HttpResponse{.status = 200, .body = ""});
    settle();
    EXPECT_TRUE(isEnabled("Check Now"));
    EXPECT_EQ(focused(), QStringLiteral("Check Now"));
}

TEST_F(MonitorsOnScreen, ARefusedActionIsAnAlertAndGivesTheKeyboardBack)
{
    transport.script(runURL, 409, "");
    choose("Check Now");
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 409.")));
    press(Qt::Key_Return);
    EXPECT_FALSE(asks("Error"));
    EXPECT_TRUE(isEnabled("Check Now"));
    EXPECT_EQ(focused(), QStringLiteral("Check Now"));
}

TEST_F(MonitorsOnScreen, TwoRefusedActionsAreTwoAlertsAndALaterOneIsToldToo)
{
    const auto refuse = [this] {
        transport.answer(HttpResponse{.status = 409, .body = ""});
        settle();
    };
    choose("Check Now");
    choose("Resume");
    refuse();
    refuse();
    EXPECT_TRUE(asks("Error"));
    press(Qt::Key_Return);
    EXPECT_TRUE(asks("Error")) << "the second one's";
    press(Qt::Key_Return);
    EXPECT_FALSE(asks("Error"));
    choose("Check Now");
    refuse();
    EXPECT_TRUE(asks("Error"));
}

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

TEST_F(MonitorsOnScreen, APressBesideTheButtonsOpensNothing)
{
    auto& row = item(Role::ListItem, QStringLiteral("Gateway"));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, row.mapToScene({row.width() / 2, row.height() - 6}).toPoint());
    settle();
    EXPECT_TRUE(names(Role::ListItem).contains(QStringLiteral("Gateway")));
}

TEST_F(MonitorsOnScreen, OneOpensByReturnAndClosesToItsRow)
{
    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    for (const auto* const text : {"Monitor Details", "Gateway", "Operational", "HTTP", "Details", "300s"}) {
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    }
    EXPECT_FALSE(shows(QStringLiteral("Last Check")));
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("Gateway"));
    EXPECT_EQ(sent(), Lines{}) << "nothing is fetched on the way";
}

TEST_F(MonitorsOnScreen, OneIsPausedOnItsOwnScreenAndTheRowFollows)
{
    transport.script(pauseURL, 200, "");
    serve({monitor("1", "Gateway", paused), monitor("2", "Mail", paused)});
    choose("Monitor Details");
    choose("Pause Monitor");
    EXPECT_EQ(sent(), (Lines{"POST " + pauseURL, "GET " + listURL}));
    EXPECT_TRUE(isEnabled("Resume Monitor"));
    choose("Close");
    EXPECT_EQ(names(Role::Button).filter("Pause"), QStringList{});
    EXPECT_EQ(names(Role::Button).filter("Resume").size(), 2);
}

TEST_F(MonitorsOnScreen, ItsOwnScreenIsCoveredWhileAnActionRunsAndTellsARefetchThatFails)
{
    transport.script(runURL, 200, "");
    transport.forget(listURL);
    choose("Monitor Details");
    choose("Run Check");
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("In progress")));
    EXPECT_FALSE(isEnabled("Pause Monitor"));
    transport.answer(HttpResponse{.status = 500, .body = ""});
    settle();
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 500.")));
    press(Qt::Key_Return);
    EXPECT_TRUE(isEnabled("Pause Monitor"));
}

TEST_F(MonitorsOnScreen, ItsURLIsOpenedInTheBrowser)
{
    choose("Monitor Details");
    item(Role::Link, QStringLiteral("https://gateway.example/health")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(links.opened, Lines{"https://gateway.example/health"});
}

TEST_F(MonitorsOnScreen, ItsURLIsLabelledInSmallLettersAndWhatElseIsKnownIsNot)
{
    choose("Monitor Details");
    const auto sizeOf = [this](const char* text) {
        const auto& label = item(Role::StaticText, QString::fromUtf8(text));
        return label.property("font").value<QFont>().pointSizeF() / QGuiApplication::font().pointSizeF();
    };
    EXPECT_NEAR(sizeOf("URL"), 0.86, 0.001);
    for (const auto* const text : {"Interval", "300s"}) EXPECT_NEAR(sizeOf(text), 1, 0.001) << text;
}

TEST_F(MonitorsOnScreen, EachScreenCanBeLeftInMidRequest)
{
    choose("Show latency graph");
    choose("Check Now");
    choose("Monitor Details");
    choose("Run Check");
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Gateway", "Mail"}));
    press(Qt::Key_Escape);
    EXPECT_TRUE(names(Role::List).contains(QStringLiteral("Status Pages")));
    while (!transport.pending.empty()) {
        transport.answer(HttpResponse{.status = 500, .body = ""});
        settle();
    }
    EXPECT_FALSE(asks("Error"));
}

TEST_F(MonitorsOnScreen, APageThatIsGoneTakesItsMonitorWithIt)
{
    choose("Monitor Details");
    servePages({}, {});
    refresh();
    settle();
    EXPECT_TRUE(shows(QStringLiteral("No Status Pages")));
    EXPECT_FALSE(shows(QStringLiteral("Monitor Details")));
}

TEST_F(MonitorsOnScreen, OfTwoThousandOnlyThoseInSightCostAnItem)
{
    Lines many;
    for (int number = 0; number < 2'000; ++number) {
        many.push_back(monitor(std::to_string(number), "Monitor " + std::to_string(number)));
    }
    serve(many);
    press(Qt::Key_F5);
    EXPECT_LT(names(Role::ListItem).size(), 40);
    EXPECT_GT(names(Role::ListItem).size(), 3);
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
