#include <QElapsedTimer>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "MonitorsOnScreen.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

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

TEST_F(MonitorsOnScreen, OneWithARunningActionHasAMovingMarkBesideItsButtons)
{
    EXPECT_EQ(names(Role::ProgressBar), QStringList());
    choose("Check Now");
    ASSERT_EQ(names(Role::ProgressBar), QStringList(QStringLiteral("In progress")));
    const auto& mark = item(Role::ProgressBar, QStringLiteral("In progress"));
    const auto& button = item(Role::Button, QStringLiteral("Check Now"));
    EXPECT_GE(mark.mapToScene({0, 0}).x(), button.mapToScene({button.width(), 0}).x());
    EXPECT_NEAR(mark.mapToScene({0, mark.height() / 2}).y(), button.mapToScene({0, button.height() / 2}).y(), 1);
    transport.answer(HttpResponse{.status = 200, .body = ""});
    settle();
    EXPECT_EQ(names(Role::ProgressBar), QStringList());
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

TEST_F(MonitorsOnScreen, OneIsPausedOnceHoweverLongTheKeyIsHeld)
{
    transport.script(pauseURL, 200, "");
    transport.script(resumeURL, 200, "");
    serve({monitor("1", "Gateway", paused), monitor("2", "Mail")});
    item(Role::Button, QStringLiteral("Pause")).forceActiveFocus(Qt::TabFocusReason);
    hold(Qt::Key_Return);
    EXPECT_EQ(sent(), (Lines{"POST " + pauseURL, "GET " + listURL}));
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

TEST_F(MonitorsOnScreen, WhileAnActionRunsOnItsOwnScreenNoKeyLeavesIt)
{
    choose("Monitor Details");
    choose("Run Check");
    for (const auto key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape}) press(key);
    EXPECT_TRUE(shows(QStringLiteral("Monitor Details")));
    transport.answer(HttpResponse{.status = 500, .body = ""});
    settle();
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("Run Check"));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Gateway", "Mail"}));
}

TEST_F(MonitorsOnScreen, TheListAndItsPageCanBeLeftDuringARequest)
{
    choose("Show latency graph");
    choose("Check Now");
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

}  // namespace

}  // namespace larkspan
