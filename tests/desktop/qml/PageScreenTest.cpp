#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "ChosenSize.h"
#include "Measures.h"
#include "Screen.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan {

namespace {

using Role = QAccessible::Role;

/// A page with everything that a page can have, opened from its row with the keyboard.
class PageOnScreen : public testing::Test, public Screen {
protected:
    PageOnScreen()
    {
        transport.script(pagesURL, 200, R"([{"id": "a", "name": "Acme Cloud", "url": "https://status.acme.example/x",
            "description": "We host <b>mail</b>.", "created_at": "2024-03-01T09:30:00Z",
            "updated_at": "2024-03-02T09:30:00Z",
            "metrics": [{"period": "24h", "uptime": 99.95, "incidents": 1}, {"period": "7d"}]},
            {"id": "b", "name": "Beta"}])");
        transport.script(overviewURL, 200, overview({{"a", "major-outage"}}));
        serveIncidents({incident("1", "Login errors", R"(, "status_page_id": "a")")});
        refresh();
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
    }

    QString selectedTab() const
    {
        for (const auto& thing : things()) {
            if (thing.role == Role::PageTab && QAccessible::queryAccessibleInterface(thing.object)->state().selected) {
                return thing.name;
            }
        }
        return {};
    }

    QString focused() const
    {
        const auto* interface = QAccessible::queryAccessibleInterface(mainWindow.window().activeFocusItem());
        return interface ? interface->text(QAccessible::Name) : QString();
    }
};

TEST_F(PageOnScreen, ShowsEveryBlockOfItsOverviewInItsExactWords)
{
    for (const auto* const text :
        {"Acme Cloud", "Down", "Current Status", "Status Page", "Public URL", "Last Updated", "2 years ago", "Created",
            "2024-03-01", "Current Activity", "Login errors", "Active Incident", "About This Status Page",
            "We host <b>mail</b>.", "Uptime", "Last 24 Hours", "99.95%", "1 incident", "Last 7 Days", "Unavailable"}) {
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    }
    EXPECT_EQ(names(Role::Link), QStringList{"status.acme.example"});
    EXPECT_EQ(selectedTab(), QStringLiteral("Overview"));
}

TEST_F(PageOnScreen, ItsPercentagesOfUptimeStandInOneColumn)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "Acme Cloud", "metrics": [
        {"period": "24h", "uptime": 99.11, "incidents": 1}, {"period": "7d", "uptime": 98.88, "incidents": 1234},
        {"period": "30d", "uptime": 100}]}])");
    refresh();
    settle();
    const auto frame = [this](const char* text) { return frameOf(item(Role::StaticText, QString::fromUtf8(text))); };
    EXPECT_EQ(frame("99.11%").right(), frame("98.88%").right());
    EXPECT_EQ(frame("99.11%").width(), frame("98.88%").width());
    EXPECT_EQ(frame("100.00%").right(), frame("98.88%").right());
    EXPECT_EQ(frame("1 incident").left(), frame("1234 incidents").left());
}

class NarrowPage : public LargeLetters, public PageOnScreen {};

TEST_F(NarrowPage, ItsUptimeStandsInAColumnOfFiguresBelowTheirPeriodsAndOneOfIncidentsBehindThem)
{
    window().resize(480, 440);
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "Acme Cloud", "metrics": [
        {"period": "24h", "uptime": 99.11, "incidents": 1}, {"period": "7d", "uptime": 100, "incidents": 1234},
        {"period": "30d"}]}])");
    refresh();
    settle();
    const auto frame = [this](const char* text) { return frameOf(item(Role::StaticText, QString::fromUtf8(text))); };
    ASSERT_GE(frame("99.11%").top(), frame("Last 24 Hours").bottom()) << "there is no room beside each other";
    for (const auto* const figure : {"99.11%", "100.00%", "Unavailable"})
        EXPECT_EQ(frame(figure).left(), frame("Last 24 Hours").left()) << figure;
    EXPECT_NEAR(frame("1 incident").left(), frame("100.00%").right() + 8, 1);
    EXPECT_EQ(frame("1234 incidents").left(), frame("1 incident").left());
    EXPECT_EQ(frame("1 incident").top(), frame("99.11%").top());
}

TEST_F(PageOnScreen, ItsLastUpdateIsADistanceThatGoesOnAndIsToldInFull)
{
    const auto updated = [this](const char* words) {
        QString found;
        for (const auto& thing : things()) {
            if (thing.name == QString::fromUtf8(words)) found = thing.description;
        }
        return found;
    };
    EXPECT_EQ(updated("2 years ago"), QStringLiteral("2024-03-02, 09:30"));
    auto& line = item(Role::Link, QStringLiteral("status.acme.example"));
    line.forceActiveFocus(Qt::TabFocusReason);
    clock.time += std::chrono::days(400);
    timers.advance(std::chrono::seconds(10));
    settle();
    EXPECT_EQ(updated("3 years ago"), QStringLiteral("2024-03-02, 09:30"));
    EXPECT_EQ(focused(), QStringLiteral("status.acme.example"));
}

TEST_F(PageOnScreen, ItsPublicURLOpensInTheBrowser)
{
    item(Role::Link, QStringLiteral("status.acme.example")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(links.opened, std::vector<std::string>{"https://status.acme.example/x"});
}

TEST_F(PageOnScreen, OfWhichLittleIsKnownShowsNoEmptyGroups)
{
    press(Qt::Key_Escape);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(QStringLiteral("No active incidents or maintenance")));
    for (const auto* const text : {"Status Page", "Public URL", "About This Status Page", "Uptime"}) {
        EXPECT_FALSE(shows(QString::fromUtf8(text))) << text;
    }
}

TEST_F(PageOnScreen, ControlWithADigitAndWithThePageKeysChooseATab)
{
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(selectedTab(), QStringLiteral("Incidents"));
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(selectedTab(), QStringLiteral("Maintenances"));
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(selectedTab(), QStringLiteral("Overview"));
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(selectedTab(), QStringLiteral("Maintenances"));
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(selectedTab(), QStringLiteral("Overview"));
    EXPECT_TRUE(shows(QStringLiteral("Login errors")));
}

TEST_F(PageOnScreen, TheArrowsOfThePickerAndAClickChooseATab)
{
    item(Role::PageTabList, QStringLiteral("View")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(selectedTab(), QStringLiteral("Incidents"));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(selectedTab(), QStringLiteral("Overview"));
    const auto& tab = item(Role::PageTab, QStringLiteral("Components"));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, tab.mapToScene({tab.width() / 2, tab.height() / 2}).toPoint());
    settle();
    EXPECT_EQ(selectedTab(), QStringLiteral("Components"));
}

TEST_F(PageOnScreen, OpensWithTheKeyboardOnThePickerAndTabGoesDownFromThere)
{
    window().resize(760, 520);
    settle();
    QStringList order{focused()};
    for (int step = 0; step < 3; ++step) {
        press(Qt::Key_Tab);
        order << focused();
    }
    EXPECT_EQ(order, (QStringList{"View", "Current Activity", "status.acme.example", "Back"}));
}

TEST_F(PageOnScreen, ItsOverviewIsScrolledByTheKeyboardWhereItIsLongerThanTheWindow)
{
    window().resize(480, 440);
    settle();
    press(Qt::Key_Tab);
    const auto& list = item(Role::List, QStringLiteral("Current Activity"));
    EXPECT_EQ(window().activeFocusItem(), &item(Role::Pane, QStringLiteral("Current Activity")));
    const auto begin = list.property("contentY").toReal();
    press(Qt::Key_End);
    EXPECT_GT(list.property("contentY").toReal(), begin);
    press(Qt::Key_Home);
    EXPECT_EQ(list.property("contentY").toReal(), begin);
}

TEST_F(PageOnScreen, EscapeLeadsBackToItsRow)
{
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("Acme Cloud"));
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Acme Cloud", "Beta"}));
    EXPECT_EQ(*dashboard->openedPage, nullptr);
}

TEST_F(PageOnScreen, AskedForInTheMenuWhileAnotherIsOpenTakesItsPlace)
{
    press(Qt::Key_2, Qt::ControlModifier);
    state->openStatusPage("b");
    settle();
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Beta")));
    EXPECT_FALSE(shows(QStringLiteral("Acme Cloud")));
    EXPECT_EQ(selectedTab(), QStringLiteral("Overview"));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Acme Cloud", "Beta"}));
}

TEST_F(PageOnScreen, ThatIsGoneFromTheAccountClosesAndTheListHasTheFocus)
{
    servePages({"b"}, {});
    refresh();
    settle();
    EXPECT_EQ(names(Role::ListItem), QStringList{"b"});
    EXPECT_EQ(focused(), QStringLiteral("b"));
}

TEST_F(PageOnScreen, FollowsTheAccountWhileItIsOpen)
{
    serveIncidents({});
    refresh();
    settle();
    EXPECT_FALSE(shows(QStringLiteral("Login errors")));
    EXPECT_TRUE(shows(QStringLiteral("No active incidents or maintenance")));
}

}  // namespace

}  // namespace larkspan
