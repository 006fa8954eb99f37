#include <QClipboard>
#include <QGuiApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "MaintenancesOnScreen.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

TEST_F(MaintenancesOnScreen, AreRowsWithTheirTitleStatusAndDate)
{
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Upgrade", "Old work"}));
    for (const auto* const text : {"Scheduled", "Completed", "2026-11-20"}) EXPECT_TRUE(shows(text)) << text;
}

TEST_F(MaintenancesOnScreen, ThatCannotBeFetchedAreTriedAgainFromTheKeyboard)
{
    press(Qt::Key_1, Qt::ControlModifier);
    transport.script(maintenancesURL, 503, "");
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_TRUE(shows("Server returned HTTP status code 503."));
    serve({});
    choose("Retry");
    EXPECT_TRUE(shows("No scheduled maintenances"));
    EXPECT_TRUE(shows("Maintenance windows will appear here."));
}

TEST_F(MaintenancesOnScreen, AreFetchedAfreshByF5)
{
    serve({work("7", "A new one")});
    press(Qt::Key_F5);
    EXPECT_EQ(sent(), Sent{fetched});
    EXPECT_EQ(names(Role::ListItem), QStringList{"A new one"});
}

TEST_F(MaintenancesOnScreen, OneOpensWithAllItsGroupsAndClosesToItsRow)
{
    openFirst();
    for (const auto* const text :
        {"Upgrade", "Scheduled", "Timeline", "Scheduled Start", "Scheduled End", "Completed", "10:00", "Description"}) {
        EXPECT_TRUE(shows(text)) << text;
    }
    EXPECT_TRUE(shows("We upgrade."));
    EXPECT_FALSE(shows("Created"));
    choose("Close");
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Upgrade", "Old work"}));
    EXPECT_EQ(sent(), Sent{fetched}) << "it is fetched afresh";
    EXPECT_EQ(focused(), "Upgrade");
}

TEST_F(MaintenancesOnScreen, TheRowsOfATimelineAreAsFarApartBelowItsLineAsAbove)
{
    serve({work("1", "Upgrade",
        isScheduled + R"(, "created_at": "2026-11-01T09:00:00Z", "updated_at": "2026-11-02T09:00:00Z")")});
    press(Qt::Key_F5);
    openFirst();
    const auto top
        = [this](const char* label) { return item(Role::StaticText, QString::fromUtf8(label)).mapToScene({0, 0}).y(); };
    EXPECT_EQ(top("Updated") - top("Created"), top("Scheduled End") - top("Scheduled Start"));
}

TEST_F(MaintenancesOnScreen, OneIsStartedAndThenCompleted)
{
    openFirst();
    transport.script(workURL, 200, work("1", "Upgrade", isInProgress));
    choose("Start Maintenance");
    EXPECT_TRUE(shows("In Progress"));
    EXPECT_FALSE(offers("Start Maintenance"));
    transport.script(workURL, 200, work("1", "Upgrade", isCompleted));
    choose("Complete Maintenance");
    EXPECT_EQ(sent(),
        (Sent{patched + R"({"start_at":"2026-11-20T09:00:00Z"})", patched + R"({"end_at":"2026-11-20T09:00:00Z"})"}));
    EXPECT_FALSE(offers("Complete Maintenance"));
    EXPECT_TRUE(offers("Delete Maintenance"));
    EXPECT_FALSE(shows("Scheduled End"));
}

TEST_F(MaintenancesOnScreen, WhileSomethingIsDoneNothingElseCanBePressed)
{
    openFirst();
    choose("Start Maintenance");
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("In progress")));
    for (const auto* const button : {"Start Maintenance", "Delete Maintenance"})
        EXPECT_FALSE(isEnabled(button)) << button;
    transport.answer(HttpResponse{.status = 409, .body = ""});
    settle();
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(shows("Server returned HTTP status code 409."));
    press(Qt::Key_Return);
    EXPECT_FALSE(asks("Error"));
    EXPECT_TRUE(isEnabled("Start Maintenance"));
}

TEST_F(MaintenancesOnScreen, OneIsDeletedFromTheMenuAfterAQuestionWhoseDefaultIsCancel)
{
    openFirst();
    choose("More Actions");
    chooseInMenu("Delete");
    EXPECT_TRUE(asks("Delete Maintenance"));
    EXPECT_TRUE(shows("Are you sure you want to delete this maintenance? This action cannot be undone."));
    press(Qt::Key_Return);
    EXPECT_EQ(sent(), Sent{});
    EXPECT_EQ(focused(), "More Actions");
    transport.script(workURL, 204, "");
    transport.forget(maintenancesURL);
    choose("Delete Maintenance");
    EXPECT_TRUE(asks("Delete Maintenance"));
    choose("Delete");
    EXPECT_EQ(sent(), (Sent{std::string("DELETE ") + workURL, fetched}));
    EXPECT_EQ(names(Role::ListItem), QStringList{"Old work"}) << "before the list is fetched";
}

TEST_F(MaintenancesOnScreen, OneIsEditedAndItsRowShowsItOnReturnWithoutAnyFetch)
{
    openEditor();
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Edit Maintenance")));
    EXPECT_EQ(focused(), "Title");
    EXPECT_EQ(textOf("Title"), "Upgrade");
    EXPECT_FALSE(shows("Timeline"));
    type("Title", " now");
    type("Message", "x");
    type("Start hour", "11");
    focus(Role::Table, "End date");
    press(Qt::Key_Right);
    transport.script(workURL, 200, work("1", "Upgrade now", isScheduled));
    transport.forget(maintenancesURL);
    choose("Save");
    EXPECT_EQ(sent(),
        Sent{patched
            + R"({"title":"Upgrade now","message":"xWe **upgrade**.","start_at":"2026-11-20T11:00:00Z",)"
              R"("end_at":"2026-11-21T12:00:00Z"})"});
    EXPECT_TRUE(shows("Timeline"));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Upgrade now", "Old work"}));
}

TEST_F(MaintenancesOnScreen, TheEditorSendsAnEndBeforeTheStartAndStaysOpenWhenItIsRefused)
{
    openEditor();
    type("End hour", "9");
    transport.script(workURL, 422, "");
    choose("Save");
    EXPECT_EQ(sent().size(), 1u);
    EXPECT_TRUE(asks("Error"));
    press(Qt::Key_Return);
    EXPECT_EQ(textOf("End hour"), "09");
    EXPECT_EQ(textOf("Title"), "Upgrade");
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(MaintenancesOnScreen, ATitleOfBlanksCannotBeSaved)
{
    openEditor();
    item(Role::EditableText, QStringLiteral("Title")).setProperty("text", "");
    type("Title", "  ");
    EXPECT_FALSE(isEnabled("Save"));
}

TEST_F(MaintenancesOnScreen, CancelledTheEditorLeavesTheMaintenanceInSight)
{
    openEditor();
    type("Title", "!");
    choose("Cancel");
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Upgrade")));
    EXPECT_TRUE(shows("Timeline"));
    EXPECT_EQ(sent(), Sent{});
}

TEST_F(MaintenancesOnScreen, EscapeInTheEditorAsksBeforeAnEditIsLost)
{
    openEditor();
    press(Qt::Key_Escape);
    EXPECT_TRUE(shows("Timeline")) << "nothing was edited";
    choose("More Actions");
    chooseInMenu("Edit");
    focus(Role::Table, "Start date");
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
    choose("Keep Editing");
    EXPECT_TRUE(isEnabled("Save"));
    press(Qt::Key_Left, Qt::AltModifier);
    choose("Discard");
    EXPECT_TRUE(shows("Timeline"));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Upgrade", "Old work"}));
}

TEST_F(MaintenancesOnScreen, ALinkOfAMessageIsOpenedAfterItsHostWasShown)
{
    serve({work("1", "a", R"j(, "message": "See [the plan](https://plan.example/x)")j")});
    press(Qt::Key_F5);
    openFirst();
    focus(Role::List, "Description");
    press(Qt::Key_Return);
    EXPECT_TRUE(shows("This link leads to plan.example."));
    EXPECT_TRUE(links.opened.empty());
    choose("Open");
    EXPECT_EQ(links.opened, Sent{"https://plan.example/x"});
}

TEST_F(MaintenancesOnScreen, APageThatIsGoneTakesItsMaintenanceWithItOnceTheOrderHasEnded)
{
    const auto loseThePage = [this] {
        servePages({}, {});
        refresh();
        settle();
    };
    openFirst();
    choose("Start Maintenance");
    loseThePage();
    EXPECT_TRUE(shows("Timeline"));
    transport.answer(HttpResponse{.status = 200, .body = work("1", "Upgrade")});
    settle();
    EXPECT_TRUE(shows("Timeline"));
    loseThePage();
    EXPECT_TRUE(shows("No Status Pages"));
    EXPECT_FALSE(shows("Timeline"));
}

TEST_F(MaintenancesOnScreen, TheFormSendsWhatWasTypedAndTheNewOneStandsFirst)
{
    openForm();
    EXPECT_TRUE(asks("New Maintenance"));
    EXPECT_EQ(focused(), "Title");
    EXPECT_TRUE(shows("Leave this as Entire status page for page-wide maintenance."));
    EXPECT_FALSE(isEnabled("Save"));
    type("Title", "Mail");
    type("Message (Optional)", "at noon");
    EXPECT_TRUE(isEnabled("Save"));
    type("Start hour", "12");
    EXPECT_FALSE(isEnabled("Save")) << "it would end before";
    focus(Role::Table, "End date");
    press(Qt::Key_Right);
    transport.script(maintenancesURL, 201, work("3", "Mail", isScheduled));
    choose("Save");
    EXPECT_EQ(sent(),
        Sent{std::string("POST ") + maintenancesURL
            + R"( {"title":"Mail","message":"at noon","status_page_id":"a","start_at":"2026-11-20T12:00:00Z",)"
              R"("end_at":"2026-11-21T10:00:00Z"})"});
    EXPECT_FALSE(asks("New Maintenance"));
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Mail", "Upgrade", "Old work"}));
}

TEST_F(MaintenancesOnScreen, TheFormKeepsAllWhenTheServiceRefusesIt)
{
    openForm();
    type("Title", "Mail");
    type("End hour", "11");
    transport.script(maintenancesURL, 422, "");
    choose("Save");
    EXPECT_TRUE(asks("Error"));
    press(Qt::Key_Return);
    EXPECT_EQ(textOf("Title"), "Mail");
    EXPECT_EQ(textOf("End hour"), "11");
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(MaintenancesOnScreen, WhileTheFormIsSentNothingInItCanBeChangedAndTheKeyboardIsBackAfterwards)
{
    openForm();
    type("End hour", "11");
    type("Title", "Mail");
    transport.forget(maintenancesURL);
    QMetaObject::invokeMethod(&item(Role::Button, QStringLiteral("Save")), "clicked");
    settle();
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Creating...")));
    typeLetters("x");
    for (const auto* const field : {"Title", "Message (Optional)", "Start hour"})
        EXPECT_FALSE(item(Role::EditableText, QString::fromUtf8(field)).isEnabled()) << field;
    EXPECT_FALSE(item(Role::Table, QStringLiteral("Start date")).isEnabled());
    transport.answer(HttpResponse{.status = 422, .body = ""});
    settle();
    press(Qt::Key_Return);
    typeLetters("y");
    EXPECT_EQ(textOf("Title"), "Maily");
    EXPECT_EQ(textOf("End hour"), "11");
}

TEST_F(MaintenancesOnScreen, WhatIsPastedIntoTheEditorIsSentAsItIs)
{
    openEditor();
    QGuiApplication::clipboard()->setText(QStringLiteral("a\u00a0b\u2028c"));
    focus(Role::EditableText, "Title");
    press(Qt::Key_V, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(QStringLiteral("a\u00a0b\u2028c\u2029d\r\ne "));
    focus(Role::EditableText, "Message");
    press(Qt::Key_V, Qt::ControlModifier);
    choose("Save");
    EXPECT_THAT(sent(),
        testing::ElementsAre(testing::HasSubstr(
            "{\"title\":\"Upgradea\u00a0b\u2028c\",\"message\":\"a\u00a0b\u2028c\\nd\\ne We **upgrade**.\",")));
}

TEST_F(MaintenancesOnScreen, WhileEditsAreSavedNothingCanBeTyped)
{
    openEditor();
    type("Title", " now");
    choose("Save");
    EXPECT_FALSE(item(Role::EditableText, QStringLiteral("Title")).isEnabled());
    transport.answer(platform::HttpResponse{.status = 422, .body = ""});
    settle();
    press(Qt::Key_Return);
    EXPECT_TRUE(item(Role::EditableText, QStringLiteral("Title")).isEnabled());
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
}

TEST_F(MaintenancesOnScreen, EscapeInTheFormAsksBeforeADateIsLostAndElseClosesIt)
{
    openForm();
    press(Qt::Key_Escape);
    EXPECT_FALSE(asks("New Maintenance"));
    openForm();
    focus(Role::Table, "Start date");
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("New Maintenance"));
    press(Qt::Key_Escape);
    choose("Discard");
    EXPECT_FALSE(asks("New Maintenance"));
}

}  // namespace

}  // namespace larkspan
