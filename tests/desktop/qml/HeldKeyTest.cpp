#include <QAccessible>
#include <QQuickItem>

#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"

namespace larkspan {

namespace {

const std::string escalateURL = "https://service.example/user/api/incidents/1/escalate";

/// Keys that are held down, which a keyboard repeats thirty times a second.
class HeldKey : public IncidentsOnScreen {
protected:
    void focus(Role role, const char* name)
    {
        item(role, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        settle();
    }

    QString textOf(const char* field) const
    {
        return item(Role::EditableText, QString::fromUtf8(field)).property("text").toString();
    }
};

class HeldKeyThatPresses : public HeldKey, public testing::WithParamInterface<Qt::Key> {};

TEST_P(HeldKeyThatPresses, OrdersOnceHoweverOftenTheButtonIsEnabledAgain)
{
    openFirst();
    transport.script(escalateURL, 200, "{}");
    transport.script(incidentURL, 200, incident("1", "Login errors"));
    focus(Role::Button, "Escalate");
    hold(GetParam());
    EXPECT_EQ(sent(), (std::vector<std::string>{"POST " + escalateURL, std::string("GET ") + incidentURL}));
    press(GetParam());
    EXPECT_EQ(sent().size(), 4U) << "a press of its own";
}

TEST_P(HeldKeyThatPresses, LeavesTheAlertThatComesUpMeanwhile)
{
    openForm();
    type("Title", "Mail");
    transport.script(createURL, 422, "");
    transport.requests.clear();
    focus(Role::Button, "Save");
    hold(GetParam());
    EXPECT_EQ(sent(), std::vector<std::string>{std::string("POST ") + createURL});
    EXPECT_TRUE(asks("Error"));
    press(GetParam());
    EXPECT_FALSE(asks("Error"));
}

TEST_P(HeldKeyThatPresses, PressesNoRow)
{
    focus(Role::List, "Incidents");
    repeat(GetParam());
    EXPECT_EQ(names(Role::ListItem).size(), 2);
    EXPECT_TRUE(sent().empty());
}

TEST_P(HeldKeyThatPresses, FollowsNoLink)
{
    aboutOwner.showingAbout = true;
    settle();
    focus(Role::Button, "GitHub");
    repeat(GetParam());
    EXPECT_TRUE(links.opened.empty());
}

TEST_P(HeldKeyThatPresses, OpensNoListOfChoicesAndTurnsNoSwitch)
{
    openForm();
    focus(Role::ComboBox, "Component Group");
    repeat(GetParam());
    EXPECT_TRUE(names(Role::PopupMenu).isEmpty());
    focus(Role::CheckBox, "Notify subscribers");
    repeat(GetParam());
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&item(Role::CheckBox, QStringLiteral("Notify subscribers")))
            ->state()
            .checked);
}

TEST_P(HeldKeyThatPresses, ChoosesNothingInTheListThatItOpened)
{
    openForm();
    focus(Role::ComboBox, "Component Group");
    hold(GetParam());
    EXPECT_FALSE(names(Role::PopupMenu).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(EachKey, HeldKeyThatPresses, testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space));

TEST_F(HeldKey, OfTheWayBackLeavesOneThing)
{
    openFirst();
    hold(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
    openFirst();
    hold(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));

    openForm();
    type("Title", "Mail");
    hold(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
}

TEST_F(HeldKey, OfARefreshFetchesOnce)
{
    hold(Qt::Key_F5);
    hold(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(sent().size(), 2U);
    press(Qt::Key_Escape);
    transport.requests.clear();
    hold(Qt::Key_F5);
    EXPECT_EQ(sent().size(), 4U);
}

TEST_F(HeldKey, GoesOnTypingDeletingAndMoving)
{
    openForm();
    focus(Role::EditableText, "Title");
    hold(Qt::Key_A);
    hold(Qt::Key_Space);
    hold(Qt::Key_A);
    EXPECT_EQ(textOf("Title"), QStringLiteral("aaaaaa      aaaaaa"));
    hold(Qt::Key_Backspace);
    EXPECT_EQ(textOf("Title").trimmed(), QStringLiteral("aaaaaa"));
    hold(Qt::Key_Return);
    EXPECT_TRUE(asks("New Incident"));

    focus(Role::EditableText, "Message (Optional)");
    hold(Qt::Key_Return);
    hold(Qt::Key_Space);
    EXPECT_EQ(textOf("Message (Optional)"), QStringLiteral("\n\n\n\n\n\n      "));
}

TEST_F(HeldKey, GoesThroughAList)
{
    focus(Role::List, "Incidents");
    press(Qt::Key_Home);
    hold(Qt::Key_Down);
    EXPECT_TRUE(
        QAccessible::queryAccessibleInterface(&item(Role::ListItem, QStringLiteral("Slow checkout")))->state().focused);
}

/// A press that started before the alert appeared, at the place of the alert's button or in the item that had the
/// focus.
class PressBeforeAnAlert : public HeldKey {
protected:
    PressBeforeAnAlert()
    {
        openFirst();
        choose("Escalate");
    }

    void refuse()
    {
        transport.answer(platform::HttpResponse{.status = 409, .body = ""});
        settle();
    }
};

TEST_F(PressBeforeAnAlert, OfAKeyIsNotForIt)
{
    for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
        QTest::keyPress(&window(), key);
        refuse();
        ASSERT_TRUE(asks("Error"));
        repeat(key);
        QTest::keyRelease(&window(), key);
        settle();
        EXPECT_TRUE(asks("Error"));
        press(Qt::Key_Return);
        choose("Escalate");
    }
}

TEST_F(PressBeforeAnAlert, OfTheMouseIsNotForIt)
{
    refuse();
    auto& button = item(Role::Button, QStringLiteral("OK"));
    const auto place = button.mapToScene({button.width() / 2, button.height() / 2}).toPoint();
    press(Qt::Key_Return);
    choose("Escalate");

    QTest::mousePress(&window(), Qt::LeftButton, {}, place);
    refuse();
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_TRUE(asks("Error"));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_FALSE(asks("Error"));
}

}  // namespace

}  // namespace larkspan
