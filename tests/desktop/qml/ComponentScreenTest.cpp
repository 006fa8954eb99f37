#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "Screen.h"

namespace larkspan {

namespace {

using platform::HttpResponse;
using Role = QAccessible::Role;

constexpr auto componentsURL = "https://service.example/user/api/components?status_page_id=a";
constexpr auto groupsURL = "https://service.example/user/api/component-groups?status_page_id=a";
constexpr auto apiURL = "https://service.example/user/api/components/1";
const QStringList wholeList{"REST API", "Worker", "Site", "Old"};

std::string component(const std::string& id, const std::string& name, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "name": ")" + name + "\"" + rest + "}";
}

std::string inGroup(const std::string& id)
{
    return R"(, "component_group_id": ")" + id + "\"";
}

/// The components of page "a", reached and worked with the keyboard alone.
class ComponentsOnScreen : public testing::Test, public Screen {
protected:
    ComponentsOnScreen()
    {
        servePages({"a"}, {});
        serve({component("1", "REST API",
                   R"(, "monitor_state": "degradedperformance", "description": "Serves all.",
                   "url": "https://status.example/api")"
                       + inGroup("core")),
            component("2", "Worker", R"(, "monitor_state": "up")" + inGroup("core")),
            component("3", "Site", R"(, "monitor_state": "partialoutage")"), component("4", "Old", inGroup("gone"))});
        transport.script(groupsURL, 200, R"([{"id": "core", "name": "Core"}, {"id": "edge", "name": "Edge"}])");
        refresh();
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        press(Qt::Key_4, Qt::ControlModifier);
        transport.requests.clear();
    }

    void serve(const std::vector<std::string>& components)
    {
        std::string joined;
        for (const auto& each : components) joined += (joined.empty() ? "" : ",") + each;
        transport.script(componentsURL, 200, "[" + joined + "]");
    }

    void enterAgain()
    {
        press(Qt::Key_1, Qt::ControlModifier);
        press(Qt::Key_4, Qt::ControlModifier);
    }

    /// The first component, by its letter.
    void open(Qt::Key letter = Qt::Key_R)
    {
        item(Role::List, QStringLiteral("Components")).forceActiveFocus(Qt::TabFocusReason);
        press(letter);
        press(Qt::Key_Return);
        transport.requests.clear();
    }

    void edit()
    {
        open();
        choose("Edit");
    }

    /// Presses a button as the keyboard does.
    void choose(const char* name)
    {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    /// Types in place of what stands in the field.
    void retype(const char* field, const char* text)
    {
        auto& entry = item(Role::EditableText, QString::fromUtf8(field));
        entry.forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        for (const char* letter = text; *letter != '\0'; ++letter) QTest::keyClick(&window(), *letter);
        settle();
    }

    QString typed(const char* field) const
    {
        return item(Role::EditableText, QString::fromUtf8(field)).property("text").toString();
    }

    bool isEnabled(const char* button) const { return item(Role::Button, QString::fromUtf8(button)).isEnabled(); }
    bool asks(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }
    bool isOpen() const { return names(Role::Heading).contains(QStringLiteral("Component Details")); }

    QString litSegment() const
    {
        for (const auto& thing : things()) {
            if (thing.role != Role::RadioButton) continue;
            if (QAccessible::queryAccessibleInterface(thing.object)->state().checked) return thing.name;
        }
        return {};
    }

    QString focused() const
    {
        const auto* interface = QAccessible::queryAccessibleInterface(mainWindow.window().activeFocusItem());
        return interface ? interface->text(QAccessible::Name) : QString();
    }

    /// "METHOD url" of what was sent.
    std::vector<std::string> sent() const
    {
        std::vector<std::string> lines;
        for (const auto& request : transport.requests) lines.push_back(request.method + " " + request.url);
        return lines;
    }
};

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

TEST_F(ComponentsOnScreen, AHeadingIsMetByTheKeyboardAndOpensNothing)
{
    auto& list = item(Role::List, QStringLiteral("Components"));
    list.forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen());
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(shows(QStringLiteral("REST API")));
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

TEST_F(ComponentsOnScreen, ItsURLOpensInTheBrowser)
{
    open();
    item(Role::Link, QStringLiteral("https://status.example/api")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(links.opened, std::vector<std::string>{"https://status.example/api"});
}

TEST_F(ComponentsOnScreen, TheKeyboardReachesEveryPartOfTheEditorInItsOrder)
{
    edit();
    EXPECT_EQ(focused(), QStringLiteral("Name"));
    QStringList order;
    for (int step = 0; step < 6; ++step) {
        press(Qt::Key_Tab);
        order << focused();
    }
    EXPECT_EQ(order, (QStringList{"Status", "Description", "Group", "Cancel", "Save", "Name"}));
}

TEST_F(ComponentsOnScreen, OneIsEditedMovedToAnotherGroupAndChangesSectionAtOnce)
{
    edit();
    EXPECT_EQ(typed("Name"), QStringLiteral("REST API"));
    EXPECT_EQ(typed("Description"), QStringLiteral("Serves all."));
    EXPECT_EQ(litSegment(), QString()) << "the service's word is none of the three";
    retype("Name", "  API ");
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    EXPECT_EQ(litSegment(), QStringLiteral("Up"));
    press(Qt::Key_Right);
    EXPECT_EQ(litSegment(), QStringLiteral("Degraded"));
    retype("Description", "");
    item(Role::ComboBox, QStringLiteral("Group")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    press(Qt::Key_E);
    press(Qt::Key_Return);
    transport.script(apiURL, 200, component("1", "API", R"(, "monitor_state": "degraded")" + inGroup("edge")));
    choose("Save");
    EXPECT_EQ(sent(), std::vector<std::string>{std::string("PUT ") + apiURL});
    EXPECT_EQ(transport.requests.back().body, R"({"name":"API","status":"degraded","group_id":"edge"})");
    EXPECT_TRUE(shows(QStringLiteral("Edge")));
    EXPECT_FALSE(shows(QStringLiteral("Save")));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Worker", "API", "Site", "Old"}));
}

TEST_F(ComponentsOnScreen, ItsNameOfSpacesDisablesSave)
{
    edit();
    EXPECT_TRUE(isEnabled("Save"));
    retype("Name", "   ");
    EXPECT_FALSE(isEnabled("Save"));
}

TEST_F(ComponentsOnScreen, ARefusedChangeKeepsTheEditorWithWhatWasTyped)
{
    edit();
    retype("Name", "Typed");
    transport.script(apiURL, 422, "");
    choose("Save");
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 422.")));
    press(Qt::Key_Return);
    EXPECT_FALSE(asks("Error"));
    EXPECT_EQ(typed("Name"), QStringLiteral("Typed"));
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(ComponentsOnScreen, WhileOneIsSavedNothingElseCanBePressedTypedOrLeft)
{
    edit();
    retype("Name", "Typed");
    choose("Save");
    EXPECT_TRUE(shows(QStringLiteral("Processing...")));
    EXPECT_FALSE(isEnabled("Cancel"));
    EXPECT_FALSE(isEnabled("Save"));
    EXPECT_FALSE(item(Role::EditableText, QStringLiteral("Name")).isEnabled());
    press(Qt::Key_Escape);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(asks("Discard Changes?"));
    transport.answer(HttpResponse{.status = 200, .body = component("1", "Typed")});
    settle();
    EXPECT_FALSE(shows(QStringLiteral("Processing...")));
    EXPECT_TRUE(shows(QStringLiteral("Typed")));
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
}

TEST_F(ComponentsOnScreen, EscapeInTheEditorAsksBeforeAnEditIsLostAndElseClosesIt)
{
    edit();
    press(Qt::Key_Escape);
    EXPECT_TRUE(isEnabled("Edit")) << "nothing was changed";
    choose("Edit");
    retype("Name", "Typed");
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
    choose("Keep Editing");
    EXPECT_EQ(typed("Name"), QStringLiteral("Typed"));
    press(Qt::Key_Escape);
    choose("Discard");
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(shows(QStringLiteral("REST API")));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), wholeList);
}

TEST_F(ComponentsOnScreen, TheKeysOfTheTabsLeaveAnOpenEditorAlone)
{
    edit();
    retype("Name", "Typed");
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(typed("Name"), QStringLiteral("Typed"));
}

TEST_F(ComponentsOnScreen, CancelShowsTheOldValuesAndEditStartsFromThem)
{
    edit();
    retype("Name", "Typed");
    choose("Cancel");
    EXPECT_TRUE(shows(QStringLiteral("REST API")));
    choose("Edit");
    EXPECT_EQ(typed("Name"), QStringLiteral("REST API"));
}

TEST_F(ComponentsOnScreen, WithoutGroupsTheEditorHasNoGroupPicker)
{
    transport.script(groupsURL, 500, "");
    edit();
    EXPECT_FALSE(names(Role::ComboBox).contains(QStringLiteral("Group")));
    choose("Save");
    EXPECT_EQ(transport.requests.back().body,
        R"({"name":"REST API","description":"Serves all.","status":"degradedperformance","group_id":"core"})");
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

}  // namespace

}  // namespace larkspan
