#include <QSignalSpy>

#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"
#include "KitWindow.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

/// A page with a header and a field, used with the keyboard while an action runs.
class BusyPage : public testing::Test, public KitWindow {
protected:
    BusyPage()
        : KitWindow(QStringLiteral(R"(
            property bool isBusy: false
            property int presses: 0
            property int returns: 0

            PageStack {
                anchors.fill: parent
                ScreenFrame { id: root; anchors.fill: parent; focus: true; title: "Root" }
                PushedPage {
                    id: page
                    isShown: true
                    isGuarded: true
                    beneath: root
                    onBackWanted: window.returns += 1
                    sourceComponent: ScreenFrame {
                        title: "Page"
                        isBusy: window.isBusy
                        leading: CommandButton { objectName: "close"; text: "Close"; onClicked: window.presses += 1 }
                        TextEntry { objectName: "entry"; focus: true; width: 200; name: "Entry" }
                        CommandButton { objectName: "press"; y: 100; text: "Press"; onClicked: window.presses += 1 }
                    }
                }
            })"))
    {
    }

    void tryEverything()
    {
        for (const auto key : {Qt::Key_Tab, Qt::Key_A, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,
                 Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Back}) {
            press(key);
        }
        press(Qt::Key_Left, Qt::AltModifier);
    }
};

TEST_F(BusyPage, TakesNoKeyWhoeverHasTheKeyboardAndGivesItBackWhereItWas)
{
    for (const auto* const name : {"close", "entry", "press"}) {
        auto& holder = item(QString::fromLatin1(name));
        holder.forceActiveFocus(Qt::TabFocusReason);
        setProperty("isBusy", true);
        tryEverything();
        EXPECT_EQ(property("presses").toInt(), 0) << name;
        EXPECT_EQ(property("returns").toInt(), 0) << name;
        EXPECT_EQ(item(QStringLiteral("entry")).property("text").toString(), QString()) << name;
        setProperty("isBusy", false);
        EXPECT_TRUE(holder.hasActiveFocus()) << name;
    }
    press(Qt::Key_Space);
    EXPECT_EQ(property("presses").toInt(), 1);
    press(Qt::Key_Escape);
    EXPECT_EQ(property("returns").toInt(), 1);
}

/// An incident of page "a" with an action that the service has not answered yet.
class BusyIncident : public IncidentsOnScreen {
protected:
    BusyIncident()
    {
        openFirst();
        choose("Add Update");
        type("Update", "half");
        choose("Save Update");
    }

    void answer(int status, const std::string& body)
    {
        transport.answer(HttpResponse{.status = status, .body = body});
        settle();
    }

    bool isBusy() const { return names(Role::ProgressBar).contains(QStringLiteral("In progress")); }
};

TEST_F(BusyIncident, TakesNoMoreOfTheTextThatIsBeingSent)
{
    for (int stops = 0; stops < 6; ++stops) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        press(Qt::Key_X);
    }
    answer(500, "");
    press(Qt::Key_Return);
    EXPECT_EQ(item(Role::EditableText, QStringLiteral("Update")).property("text").toString(), QStringLiteral("half"));
}

TEST_F(BusyIncident, IsNeitherLeftNorAskedAbout)
{
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_FALSE(asks("Discard Changes?"));
    EXPECT_TRUE(isBusy());
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Add Update")));
    answer(200, incident("1", "Login errors", R"(, "message": "half")"));
    EXPECT_FALSE(isBusy());
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Login errors")));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
}

TEST_F(IncidentsOnScreen, WhileAnOrderRunsTheProgramIsQuitAndAnotherPageIsOpenedFromThePanel)
{
    servePages({"a", "b"}, {});
    refresh();
    settle();
    openFirst();
    choose("Escalate");
    const QSignalSpy quits(&mainWindow, SIGNAL(quitRequested()));
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits.size(), 1);
    state->openStatusPage("b");
    settle();
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("b")));
    EXPECT_TRUE(names(Role::ProgressBar).isEmpty());
    EXPECT_TRUE(window().close());
}

TEST_F(IncidentsOnScreen, WhileAFormIsSentTheProgramIsQuitAndNoKeyReachesTheForm)
{
    openForm();
    type("Title", "Mail");
    transport.forget(createURL);
    choose("Save");
    const QSignalSpy quits(&mainWindow, SIGNAL(quitRequested()));
    for (const auto key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Space, Qt::Key_X, Qt::Key_Escape}) press(key);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits.size(), 1);
    transport.answer(HttpResponse{.status = 422, .body = ""});
    settle();
    press(Qt::Key_Return);
    EXPECT_EQ(item(Role::EditableText, QStringLiteral("Title")).property("text").toString(), QStringLiteral("Mail"));
    EXPECT_TRUE(item(Role::Button, QStringLiteral("Save")).hasActiveFocus());
}

}  // namespace

}  // namespace larkspan
