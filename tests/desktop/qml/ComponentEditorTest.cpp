#include <gtest/gtest.h>

#include "ComponentsOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

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

TEST_F(ComponentsOnScreen, ItsStatusThatNoSegmentHasIsNamedUnderThemUntilOneIsChosen)
{
    edit();
    const auto words = QStringLiteral("Now “degradedperformance”, which stays until you choose another.");
    EXPECT_TRUE(shows(words));
    const auto& line = item(Role::StaticText, words);
    EXPECT_GE(gapBelow(item(Role::Grouping, QStringLiteral("Status")), line), 0);
    EXPECT_LE(frameOf(line).bottom(), frameOf(item(Role::Heading, QStringLiteral("Description"))).top());
    item(Role::Grouping, QStringLiteral("Status")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(litSegment(), QStringLiteral("Up"));
    EXPECT_FALSE(shows(words));
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

}  // namespace

}  // namespace larkspan
