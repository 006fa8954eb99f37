#include <QImage>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "Measures.h"
#include "Screen.h"
#include "workspace/SettingsView.h"

namespace larkspan {

namespace {

using platform::UpdateCheck;
using Role = QAccessible::Role;

class DialogOnScreen : public testing::Test, public Screen {
protected:
    DialogOnScreen()
    {
        servePages({"a"}, {});
        refresh();
        settle();
    }

    bool isOpen(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }
    static bool hasRing(QQuickItem& button) { return !partsOf(button, "holder", QVariant::fromValue(&button)).empty(); }
    QString focused() const
    {
        const auto* interface = QAccessible::queryAccessibleInterface(mainWindow.window().activeFocusItem());
        return interface ? interface->text(QAccessible::Name) : QString();
    }
};

class AboutOnScreen : public DialogOnScreen {
protected:
    AboutOnScreen()
    {
        item(Role::Button, QStringLiteral("Menu")).forceActiveFocus(Qt::TabFocusReason);
        aboutOwner.showingAbout = true;
        settle();
    }
};

TEST_F(AboutOnScreen, IsADialogWithTheProgramsVersionAndWords)
{
    EXPECT_TRUE(isOpen("About Kestrune"));
    for (const auto* const text :
        {"Kestrune", "Version 1.2 (34)", "A focused companion for monitoring your Kestrune status pages."}) {
        EXPECT_TRUE(shows(QString::fromLatin1(text))) << text;
    }
}

TEST_F(AboutOnScreen, ShowsTheProgramsIconInItsOwnColours)
{
    QImage icon;
    visit([&](QQuickItem& item) {
        if (item.property("name") != QStringLiteral("application-icon")) return;
        icon = window().grabWindow().copy(item.mapRectToScene(item.boundingRect()).toRect());
    });
    ASSERT_FALSE(icon.isNull());
    // Below the lighter wing, in the tile.
    EXPECT_EQ(icon.pixelColor(icon.width() / 5, icon.height() * 17 / 20), QColor(0x1a, 0x5b, 0xbd));
    EXPECT_NE(icon.pixelColor(0, 0), QColor(0x1a, 0x5b, 0xbd)) << "its corners are round";
}

TEST_F(AboutOnScreen, HasThreeLinksWithNameAndDescription)
{
    QStringList found;
    for (const auto& thing : things()) {
        if (!thing.description.isEmpty() && thing.role == Role::Button)
            found << thing.name + QStringLiteral(": ") + thing.description;
    }
    EXPECT_EQ(found,
        (QStringList{"Kestrune: Visit our website", "Community on Discord: Chat with our team",
            "GitHub: Source code and issue tracking"}));
}

TEST_F(AboutOnScreen, ReturnOnALinkOpensIt)
{
    item(Role::Button, QStringLiteral("GitHub")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(links.opened, std::vector<std::string>{"https://source.example"});
    EXPECT_TRUE(isOpen("About Kestrune"));
}

TEST_F(AboutOnScreen, DoneIsTheDefaultSoReturnCloses)
{
    EXPECT_EQ(focused(), QStringLiteral("Done"));
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen("About Kestrune"));
    EXPECT_FALSE(*aboutOwner.showingAbout);
}

TEST_F(AboutOnScreen, EscapeClosesAndGivesTheFocusBack)
{
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen("About Kestrune"));
    EXPECT_EQ(focused(), QStringLiteral("Menu"));
}

class AboutInASmallWindow : public DialogOnScreen {
protected:
    AboutInASmallWindow()
    {
        window().resize(480, 440);
        settle();
        aboutOwner.showingAbout = true;
        settle();
    }
};

TEST_F(AboutInASmallWindow, OpensAtItsTopThoughItsButtonBelowHasTheFocus)
{
    EXPECT_EQ(focused(), QStringLiteral("Done"));
    EXPECT_GT(frameOf(item(Role::Button, QStringLiteral("Done"))).bottom(), 420);
    EXPECT_LT(frameOf(item(Role::Heading, QStringLiteral("About Kestrune"))).bottom(),
        frameOf(*partOf(*window().contentItem(), "name", QStringLiteral("application-icon"))).top());
}

TEST_F(AboutInASmallWindow, FollowsTheKeyboardFromThenOn)
{
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    EXPECT_EQ(focused(), QStringLiteral("Done"));
    EXPECT_LE(frameOf(item(Role::Button, QStringLiteral("Done"))).bottom(), 420);
}

TEST_F(AboutOnScreen, NoWordOfItsSentenceStandsAloneOnTheLastLine)
{
    const auto sentence = QStringLiteral("A focused companion for monitoring your Kestrune status pages.");
    const auto& text = item(Role::StaticText, sentence);
    EXPECT_TRUE(text.property("text").toString().endsWith(QStringLiteral("status\u00a0pages.")))
        << "no line ends between the last two";
    EXPECT_EQ(text.property("text").toString().simplified(), sentence) << "and nothing else differs";
}

TEST_F(AboutOnScreen, CanBeOpenedAgain)
{
    press(Qt::Key_Escape);
    aboutOwner.showingAbout = true;
    settle();
    EXPECT_TRUE(isOpen("About Kestrune"));
}

class UpdatesOnScreen : public DialogOnScreen {
protected:
    UpdatesOnScreen()
    {
        updates->checkForUpdates();
        settle();
    }
};

TEST_F(UpdatesOnScreen, ACheckShowsProgressAndItsFindingComesInTheSameDialog)
{
    EXPECT_TRUE(isOpen("Checking for Updates\u2026"));
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Checking for Updates\u2026")));
    updater.pending.at(0)(UpdateCheck{.finding = UpdateCheck::Finding::noPackageService});
    settle();
    EXPECT_TRUE(isOpen("Couldn\u2019t Check for Updates"));
    EXPECT_TRUE(shows(
        QStringLiteral("There is no package service on this computer. Updates come with those of your distribution.")));
    EXPECT_FALSE(names(Role::ProgressBar).contains(QStringLiteral("Couldn\u2019t Check for Updates")));
    EXPECT_EQ(names(Role::Dialog).size(), 1);
}

TEST_F(UpdatesOnScreen, CloseIsPlainWhileTheCheckRunsAndOKOfTheFindingIsProminent)
{
    EXPECT_FALSE(item(Role::Button, QStringLiteral("Close")).property("isProminent").toBool());
    updater.pending.at(0)(UpdateCheck{.finding = UpdateCheck::Finding::upToDate, .installedVersion = "1.2"});
    settle();
    EXPECT_TRUE(item(Role::Button, QStringLiteral("OK")).property("isProminent").toBool());
}

TEST_F(DialogOnScreen, OpenedByTheKeyboardShowsWhichButtonHasTheFocus)
{
    press(Qt::Key_F5);
    updates->checkForUpdates();
    settle();
    EXPECT_TRUE(hasRing(item(Role::Button, QStringLiteral("Close"))));
}

class QuestionOnScreen : public DialogOnScreen {
protected:
    QuestionOnScreen()
    {
        dashboard->openSettings();
        settle();
        dashboard->settings()->confirmDelete();
        settle();
    }

    QQuickItem& button(const char* name) const { return item(Role::Button, QString::fromUtf8(name)); }
};

TEST_F(QuestionOnScreen, WhatCannotBeUndoneIsFilledAndStandsApartFromCancel)
{
    EXPECT_GE(gapBeside(button("Cancel"), button("Delete")), 16);
    const auto place = frameOf(button("Delete")).toRect();
    EXPECT_EQ(window().grabWindow().pixelColor(place.left() + 6, place.center().y()), light::red);
    EXPECT_EQ(colorOf(*partOf(button("Delete"), "text", QStringLiteral("Delete"))), QColor("#ffffff"));
}

TEST_F(QuestionOnScreen, TheFocusIsSeenOnCancelWhateverOpenedIt)
{
    QTest::mouseClick(&window(), Qt::LeftButton, {}, {5, 5});
    settle();
    EXPECT_EQ(focused(), QStringLiteral("Cancel"));
    EXPECT_TRUE(hasRing(button("Cancel")));
    EXPECT_FALSE(hasRing(button("Delete")));
}

TEST_F(UpdatesOnScreen, OKClosesIt)
{
    updater.pending.at(0)(UpdateCheck{.finding = UpdateCheck::Finding::upToDate, .installedVersion = "1.2"});
    settle();
    EXPECT_EQ(focused(), QStringLiteral("OK"));
    press(Qt::Key_Return);
    EXPECT_TRUE(names(Role::Dialog).isEmpty());
    EXPECT_FALSE(*updates->isShowing);
}

TEST_F(UpdatesOnScreen, EscapeClosesItInMidCheck)
{
    press(Qt::Key_Escape);
    EXPECT_TRUE(names(Role::Dialog).isEmpty());
    updater.pending.at(0)(UpdateCheck{.finding = UpdateCheck::Finding::upToDate});
    settle();
    EXPECT_TRUE(names(Role::Dialog).isEmpty());
}

class AnyDialogOnScreen : public DialogOnScreen {
protected:
    void lookAtAll()
    {
        int texts = 0;
        int controls = 0;
        visit([&](QQuickItem& item) {
            if (!item.isVisible()) return;
            if (item.inherits("QQuickText")) {
                ++texts;
                EXPECT_EQ(item.property("textFormat").toInt(), Qt::PlainText);
            }
            if (item.activeFocusOnTab()) {
                ++controls;
                const auto* const interface = QAccessible::queryAccessibleInterface(&item);
                EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << item.metaObject()->className();
                EXPECT_NE(interface->role(), Role::NoRole);
            }
        });
        EXPECT_GT(texts, 6);
        EXPECT_GT(controls, 4);
    }
};

TEST_F(AnyDialogOnScreen, ShowsTextAsItStandsAndNamesEveryControl)
{
    dashboard->openSettings();
    settle();
    lookAtAll();
    dashboard->settings()->confirmDelete();
    settle();
    lookAtAll();
    dashboard->closeSettings();
    aboutOwner.showingAbout = true;
    settle();
    lookAtAll();
    aboutOwner.showingAbout = false;
    updates->checkForUpdates();
    settle();
    lookAtAll();
}

class HeadlineOnScreen : public DialogOnScreen {};

TEST_F(HeadlineOnScreen, SaysTheAccountsStateAndItsDetails)
{
    servePages({"a"}, {{"a", "operational"}});
    serveIncidents({incident("1", "Login errors")});
    refresh();
    settle();
    EXPECT_TRUE(shows(QStringLiteral("An active incident requires attention")));
    EXPECT_TRUE(shows(QStringLiteral("1 Status Page · 1 active incident")));
}

TEST_F(HeadlineOnScreen, APageThatTheMenuAskedForIsTheCurrentRowInSightOnTheWayBack)
{
    std::vector<std::string> ids;
    for (int number = 0; number < 300; ++number) ids.push_back("page-" + std::to_string(number));
    servePages(ids, {});
    refresh();
    settle();
    state->openStatusPage("page-250");
    settle();
    EXPECT_TRUE(names(Role::ListItem).isEmpty());
    press(Qt::Key_Escape);
    for (const auto& thing : things()) {
        if (thing.role != Role::ListItem) continue;
        const bool isCurrent = QAccessible::queryAccessibleInterface(thing.object)->state().focused;
        EXPECT_EQ(isCurrent, thing.name == QStringLiteral("page-250")) << thing.name.toStdString();
    }
    EXPECT_TRUE(names(Role::ListItem).contains(QStringLiteral("page-250")));
}

TEST_F(HeadlineOnScreen, APageThatTheMenuAskedForWhileARowHadTheKeyboardHasItOnTheWayBack)
{
    servePages({"a", "b", "c"}, {});
    refresh();
    item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), QStringLiteral("b"));
    state->openStatusPage("c");
    settle();
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("c"));
    press(Qt::Key_Return);
    EXPECT_EQ(*dashboard->selectedPageId, "c");
}

TEST_F(HeadlineOnScreen, ReturnOnARowOpensItsPage)
{
    item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(*dashboard->selectedPageId, "a");
    EXPECT_EQ(names(Role::PageTab), (QStringList{"Overview", "Incidents", "Monitors", "Components", "Maintenances"}));
}

TEST_F(HeadlineOnScreen, AListAtItsTopStaysThereWhenTheHeadlineTakesMoreLines)
{
    window().resize(480, 440);
    settle();
    auto& list = item(Role::List, QStringLiteral("Status Pages"));
    servePages({"a", "b"}, {});
    serveIncidents({incident("1", "a"), incident("2", "b")});
    serveMaintenances({maintenance("3", "c")});
    refresh();
    settle();
    const auto top = list.property("originY").toReal() - list.property("topMargin").toReal();
    EXPECT_DOUBLE_EQ(list.property("contentY").toReal(), top);
}

}  // namespace

}  // namespace larkspan
