#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "ComponentsOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

TEST_F(ComponentsOnScreen, AreRowsUnderTheHeadingsOfTheirSections)
{
    QStringList read;
    for (const auto& thing : things()) {
        if (thing.role == Role::ListItem) read << thing.name + ": " + thing.description;
        if (thing.role == Role::Heading && thing.name != QStringLiteral("a")) read << thing.name;
    }
    EXPECT_EQ(read,
        (QStringList{"Core", "REST API: Degradedperformance", "Worker: Up", "Edge", "Ungrouped", "Site: Partialoutage",
            "Other Components", "Old: Unknown"}));
    EXPECT_TRUE(names(Role::StaticText).contains(QStringLiteral("Serves all.")));
}

TEST_F(ComponentsOnScreen, BeginWithTheirFirstHeadingInAWindowTooSmallForAllOfThem)
{
    std::vector<std::string> many;
    for (int number = 0; number < 40; ++number) {
        many.push_back(component(std::to_string(number), "Name " + std::to_string(number), inGroup("core")));
    }
    serve(many);
    window().resize(480, 440);
    enterAgain();
    settle();
    const auto& heading = item(Role::Heading, QStringLiteral("Core"));
    EXPECT_GE(frameOf(heading).top(), frameOf(item(Role::List, QStringLiteral("Components"))).top());
}

TEST_F(ComponentsOnScreen, AHeadingIsSkippedByEveryKeyThatMovesThroughTheRows)
{
    item(Role::List, QStringLiteral("Components")).forceActiveFocus(Qt::TabFocusReason);
    QStringList met{focused()};
    for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_E,
             Qt::Key_PageDown, Qt::Key_PageUp}) {
        press(key);
        met << focused();
    }
    EXPECT_EQ(met,
        (QStringList{"REST API", "Worker", "Site", "Old", "Site", "Old", "REST API", "REST API", "Old", "REST API"}));
}

TEST_F(ComponentsOnScreen, AHeadingInTheCurrentRowsPlaceIsPassedByToo)
{
    item(Role::List, QStringLiteral("Components")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), QStringLiteral("Worker"));
    serve({component("1", "REST API", inGroup("core")), component("2", "Worker", inGroup("edge"))});
    press(Qt::Key_F5);
    for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        for (int step = 0; step < 6; ++step) {
            press(key);
            EXPECT_NE(QAccessible::queryAccessibleInterface(window().activeFocusItem())->role(), Role::Heading);
        }
    }
}

TEST_F(ComponentsOnScreen, ThatCannotBeFetchedAreToldInAnAlertAndInTheBodyAndThenThereAreNone)
{
    transport.script(componentsURL, 403, "");
    enterAgain();
    EXPECT_TRUE(asks("Error"));
    EXPECT_EQ(names(Role::StaticText).count(QStringLiteral("Access forbidden. Check your API key scopes.")), 2);
    EXPECT_TRUE(names(Role::Button).contains(QStringLiteral("Retry")));
    press(Qt::Key_Return);
    EXPECT_FALSE(asks("Error"));
    EXPECT_TRUE(shows(QStringLiteral("No Components")));
    EXPECT_TRUE(shows(QStringLiteral("This status page has no components yet.")));
    EXPECT_FALSE(names(Role::Button).contains(QStringLiteral("Retry")));
}

TEST_F(ComponentsOnScreen, AreTriedAgainFromTheKeyboardAfterAFailure)
{
    transport.script(componentsURL, 500, "");
    press(Qt::Key_F5);
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(names(Role::ListItem).isEmpty());
    press(Qt::Key_Escape);
    serve({component("1", "REST API")});
    press(Qt::Key_F5);
    EXPECT_EQ(names(Role::ListItem), QStringList{"REST API"});
}

TEST_F(ComponentsOnScreen, AreFetchedAfreshByF5AndTheAccountIsNot)
{
    press(Qt::Key_F5);
    EXPECT_EQ(sent(), (std::vector<std::string>{std::string("GET ") + componentsURL, std::string("GET ") + groupsURL}));
}

TEST_F(ComponentsOnScreen, WhoseGroupsFailShowWithoutAnAlert)
{
    transport.script(groupsURL, 500, "");
    press(Qt::Key_F5);
    EXPECT_FALSE(asks("Error"));
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Site", "REST API", "Worker", "Old"}));
}

TEST_F(ComponentsOnScreen, OneOpensWithAllItsGroupsAndClosesToItsRowWithoutAFetch)
{
    open();
    EXPECT_TRUE(isOpen());
    for (const auto* const text :
        {"REST API", "Degradedperformance", "Details", "Group", "Core", "URL", "Description", "Serves all."}) {
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    }
    EXPECT_EQ(names(Role::Link), QStringList{"https://status.example/api"});
    choose("Close");
    EXPECT_EQ(names(Role::ListItem), wholeList);
    EXPECT_TRUE(sent().empty());
    press(Qt::Key_Return);
    EXPECT_TRUE(isOpen()) << "the list has the focus, on the same row";
}

TEST_F(ComponentsOnScreen, OneOfWhichLittleIsKnownShowsItsHeaderAlone)
{
    open(Qt::Key_S);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(shows(QStringLiteral("Partialoutage")));
    EXPECT_FALSE(shows(QStringLiteral("Details")));
    EXPECT_FALSE(shows(QStringLiteral("Description")));
}

TEST_F(ComponentsOnScreen, OneWithoutAnyDetailToShowHasTheirHeadingAndNoCard)
{
    serve({component("1", "REST API", R"(, "url": "https://[broken")")});
    enterAgain();
    open();
    ASSERT_TRUE(names(Role::Heading).contains(QStringLiteral("Details")));
    EXPECT_EQ(names(Role::Link), QStringList());
    const auto& heading = item(Role::Heading, QStringLiteral("Details"));
    const auto& group = *heading.parentItem()->parentItem();
    EXPECT_EQ(group.height(), heading.height());
}

TEST_F(ComponentsOnScreen, ItsURLOpensInTheBrowser)
{
    open();
    item(Role::Link, QStringLiteral("https://status.example/api")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(links.opened, std::vector<std::string>{"https://status.example/api"});
}

TEST_F(ComponentsOnScreen, OneIsDeletedAfterAQuestionWhoseDefaultIsCancel)
{
    open();
    choose("Delete Component");
    EXPECT_TRUE(asks("Delete Component"));
    press(Qt::Key_Return);
    EXPECT_TRUE(sent().empty());
    transport.script(apiURL, 204, "");
    choose("Delete Component");
    choose("Delete");
    EXPECT_EQ(sent(), std::vector<std::string>{std::string("DELETE ") + apiURL});
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Worker", "Site", "Old"}));
}

TEST_F(ComponentsOnScreen, ALongDescriptionIsReadByTheKeyboard)
{
    std::string lines;
    for (int line = 0; line < 100; ++line) lines += "line\\n";
    serve({component("1", "REST API", R"(, "description": ")" + lines + "\"")});
    press(Qt::Key_F5);
    open();
    const auto& column = item(Role::Pane, QStringLiteral("Component Details"));
    EXPECT_TRUE(column.hasActiveFocus());
    press(Qt::Key_PageDown);
    const auto onePage = column.property("contentY").toReal();
    EXPECT_GT(onePage, 100);
    press(Qt::Key_End);
    EXPECT_EQ(column.property("contentY").toReal(), column.property("contentHeight").toReal() - column.height());
    press(Qt::Key_Home);
    EXPECT_EQ(column.property("contentY").toReal(), 0);
}

TEST_F(ComponentsOnScreen, APageThatIsGoneTakesItsComponentWithIt)
{
    edit();
    servePages({}, {});
    refresh();
    settle();
    EXPECT_TRUE(shows(QStringLiteral("No Status Pages")));
    EXPECT_FALSE(isOpen());
}

TEST_F(ComponentsOnScreen, ALongDescriptionStandsInItsRowInWhole)
{
    std::string description;
    for (int word = 0; word < 60; ++word) description += "word" + std::to_string(word) + " ";
    serve({component("1", "REST API", R"(, "description": ")" + description + "\""), component("2", "Worker")});
    press(Qt::Key_F5);
    const auto& row = item(Role::ListItem, QStringLiteral("REST API"));
    const auto& label = item(Role::StaticText, QString::fromStdString(description));
    EXPECT_GT(label.property("lineCount").toInt(), 3);
    EXPECT_FALSE(label.property("truncated").toBool());
    EXPECT_GT(row.height(), label.height());
    EXPECT_EQ(item(Role::ListItem, QStringLiteral("Worker")).y(), row.y() + row.height());
}

TEST_F(ComponentsOnScreen, AStatusLongerThanTheRowLeavesTheNameItsPlace)
{
    serve({component("1", "REST API", R"(, "monitor_state": ")" + std::string(500, 'w') + "\"")});
    press(Qt::Key_F5);
    const auto& row = item(Role::ListItem, QStringLiteral("REST API"));
    const auto& name = item(Role::StaticText, QStringLiteral("REST API"));
    EXPECT_GT(name.width(), row.width() / 3);
}

TEST_F(ComponentsOnScreen, OfFiveThousandInThreeHundredGroupsOnlyThoseInSightCostAnItem)
{
    std::vector<std::string> many;
    for (int number = 0; number < 5'000; ++number) {
        many.push_back(component(
            std::to_string(number), "component " + std::to_string(number), inGroup(std::to_string(number % 300))));
    }
    std::string groups;
    for (int number = 0; number < 300; ++number) {
        groups += (number == 0 ? "" : ",") + component(std::to_string(number), "group " + std::to_string(number));
    }
    serve(many);
    transport.script(groupsURL, 200, "[" + groups + "]");
    press(Qt::Key_F5);
    EXPECT_LT(names(Role::ListItem).size(), 60);
    EXPECT_GT(names(Role::ListItem).size(), 5);
    item(Role::List, QStringLiteral("Components")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_TRUE(names(Role::ListItem).contains(QStringLiteral("component 4799"))) << "the last of the last group";
}

TEST_F(ComponentsOnScreen, WithAnEmptyStatusHaveTheirPillAndHeadingsHaveNone)
{
    const auto pills = [this] {
        int count = 0;
        visit([&count](QQuickItem& each) {
            if (each.isVisible() && each.property("pill").isValid() && each.property("symbolWidth").isValid()) ++count;
        });
        return count;
    };
    serve({component("1", "REST API", R"(, "monitor_state": "")")});
    enterAgain();
    EXPECT_EQ(pills(), 1);
    open();
    EXPECT_EQ(pills(), 1);
}

TEST_F(ComponentsOnScreen, AMegabyteOfDescriptionWithoutAPlaceToBreakIsShownInPart)
{
    serve({component("1", "REST API", R"(, "description": ")" + std::string(1'000'000, 'x') + '"')});
    QElapsedTimer timer;
    timer.start();
    enterAgain();
    open();
    EXPECT_LT(timer.elapsed(), 2'000);
    EXPECT_TRUE(shows(QString(20'000, u'x') + u'…'));
}

}  // namespace

}  // namespace larkspan
