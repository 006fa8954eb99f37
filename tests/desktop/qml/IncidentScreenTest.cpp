#include <QQuickItem>

#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/StatusPageIncidentsView.h"
#include "workspace/StatusPageDetailView.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

TEST_F(IncidentsOnScreen, AreRowsWithTheirTitleSeverityDateAndStatus)
{
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
    for (const auto* const text : {"Critical", "2026-11-20", "Active", "Acknowledged"}) {
        EXPECT_TRUE(names(Role::StaticText).contains(QString::fromUtf8(text))) << text;
    }
}

TEST_F(IncidentsOnScreen, ThatCannotBeFetchedAreTriedAgainFromTheKeyboard)
{
    press(Qt::Key_1, Qt::ControlModifier);
    transport.script(pageIncidentsURL, 503, "");
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 503.")));
    serve({});
    choose("Retry");
    EXPECT_TRUE(shows(QStringLiteral("No Incidents")));
    EXPECT_TRUE(shows(QStringLiteral("All systems are running smoothly.")));
}

TEST_F(IncidentsOnScreen, AreFetchedAfreshByF5AndTheAccountIsNot)
{
    serve({incident("7", "A new one")});
    press(Qt::Key_F5);
    EXPECT_EQ(sent(), std::vector<std::string>{std::string("GET ") + pageIncidentsURL});
    EXPECT_EQ(names(Role::ListItem), QStringList{"A new one"});
}

TEST_F(IncidentsOnScreen, OneOpensWithAllItsGroupsAndClosesToItsRow)
{
    openFirst();
    for (const auto* const text :
        {"Login errors", "Active", "Critical", "Timeline", "Created", "09:30", "Duration", "Description"}) {
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    }
    EXPECT_TRUE(shows(QStringLiteral("We see errors.")));
    EXPECT_FALSE(shows(QStringLiteral("Assigned To")));
    choose("Close");
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
    EXPECT_EQ(sent(), std::vector<std::string>{std::string("GET ") + pageIncidentsURL}) << "it is fetched afresh";
}

TEST_F(IncidentsOnScreen, OneThatIsLeftTwiceBeforeItHasGoneFetchesTheListOnce)
{
    openFirst();
    QTest::keyClick(&window(), Qt::Key_Escape);
    QTest::keyClick(&window(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
    EXPECT_EQ(sent(), std::vector<std::string>{std::string("GET ") + pageIncidentsURL});
}

TEST_F(IncidentsOnScreen, OneIsAcknowledgedAndShownAnew)
{
    openFirst();
    transport.script(acknowledgeURL, 200, "{}");
    transport.script(incidentURL, 200, incident("1", "Login errors", R"(, "acknowledged_at": "x")"));
    choose("Acknowledge");
    EXPECT_EQ(
        sent(), (std::vector<std::string>{std::string("POST ") + acknowledgeURL, std::string("GET ") + incidentURL}));
    EXPECT_FALSE(isEnabled("Acknowledge"));
    EXPECT_TRUE(isEnabled("Resolve"));
}

TEST_F(IncidentsOnScreen, WhileSomethingIsDoneNothingElseCanBePressed)
{
    openFirst();
    choose("Escalate");
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("In progress")));
    for (const auto* const button : {"Acknowledge", "Resolve", "Escalate", "Add Update", "Delete Incident"}) {
        EXPECT_FALSE(isEnabled(button)) << button;
    }
    transport.answer(HttpResponse{.status = 409, .body = ""});
    settle();
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 409.")));
    press(Qt::Key_Return);
    EXPECT_FALSE(asks("Error"));
    EXPECT_TRUE(isEnabled("Escalate"));
}

TEST_F(IncidentsOnScreen, AnUpdateIsWrittenKeptWhenItFailsAndSent)
{
    openFirst();
    choose("Add Update");
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Add Update")));
    EXPECT_FALSE(isEnabled("Save Update"));
    type("Update", "  fixed ");
    EXPECT_TRUE(isEnabled("Save Update"));
    transport.script(incidentURL, 500, "");
    choose("Save Update");
    EXPECT_TRUE(asks("Error"));
    press(Qt::Key_Return);
    EXPECT_TRUE(isEnabled("Save Update")) << "the text is still there";

    transport.script(incidentURL, 200, incident("1", "Login errors", R"(, "message": "fixed")"));
    choose("Save Update");
    EXPECT_EQ(transport.requests.back().body, R"({"message":"fixed","append_update":true})");
    EXPECT_FALSE(names(Role::Heading).contains(QStringLiteral("Add Update")));
    EXPECT_TRUE(shows(QStringLiteral("fixed")));
}

TEST_F(IncidentsOnScreen, EscapeInTheEditorAsksBeforeTypedTextIsLost)
{
    openFirst();
    choose("Add Update");
    type("Update", "half a sentence");
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
    choose("Keep Editing");
    EXPECT_TRUE(isEnabled("Save Update"));
    press(Qt::Key_Escape);
    choose("Discard");
    EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("Login errors")));
    press(Qt::Key_Escape);
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
}

TEST_F(IncidentsOnScreen, OneIsDeletedAfterAQuestionWhoseDefaultIsCancel)
{
    openFirst();
    choose("Delete Incident");
    EXPECT_TRUE(asks("Delete Incident"));
    EXPECT_TRUE(shows(QStringLiteral("Are you sure you want to delete this incident? This action cannot be undone.")));
    press(Qt::Key_Return);
    EXPECT_TRUE(sent().empty());
    transport.script(incidentURL, 204, "");
    serve({incident("2", "Slow checkout")});
    choose("Delete Incident");
    choose("Delete");
    EXPECT_EQ(sent(),
        (std::vector<std::string>{std::string("DELETE ") + incidentURL, std::string("GET ") + pageIncidentsURL}));
    EXPECT_EQ(names(Role::ListItem), QStringList{"Slow checkout"});
}

TEST_F(IncidentsOnScreen, ALinkOfAMessageIsOpenedAfterItsHostWasShown)
{
    serve({incident("1", "a", R"j(, "message": "See [https://bank.example](https://evil.example/x)")j")});
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_2, Qt::ControlModifier);
    openFirst();
    item(Role::List, QStringLiteral("Description")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(QStringLiteral("This link leads to evil.example.")));
    EXPECT_TRUE(links.opened.empty());
    choose("Open");
    EXPECT_EQ(links.opened, std::vector<std::string>{"https://evil.example/x"});
}

TEST_F(IncidentsOnScreen, TheFormSendsWhatWasTypedAndTheNewOneStandsFirst)
{
    openForm();
    EXPECT_TRUE(asks("New Incident"));
    EXPECT_FALSE(isEnabled("Save"));
    type("Title", "Mail is down");
    type("Message (Optional)", "since 9");
    item(Role::CheckBox, QStringLiteral("Notify subscribers")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    transport.script(createURL, 201, incident("3", "Mail is down"));
    choose("Save");
    EXPECT_EQ(transport.requests.back().body,
        R"({"title":"Mail is down","message":"since 9","status_page_id":"a","notify_subscribers":false})");
    EXPECT_FALSE(asks("New Incident"));
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Mail is down", "Login errors", "Slow checkout"}));
}

TEST_F(IncidentsOnScreen, TheFormKeepsWhatWasTypedWhenTheServiceRefusesIt)
{
    openForm();
    type("Title", "Mail");
    transport.script(createURL, 422, "");
    choose("Save");
    EXPECT_TRUE(asks("Error"));
    press(Qt::Key_Return);
    EXPECT_EQ(item(Role::EditableText, QStringLiteral("Title")).property("text").toString(), QStringLiteral("Mail"));
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(IncidentsOnScreen, WhileTheFormIsSentNothingInItCanBeChanged)
{
    openForm();
    type("Title", "Mail");
    transport.forget(createURL);
    choose("Save");
    for (const auto* const field : {"Title", "Message (Optional)"})
        EXPECT_FALSE(item(Role::EditableText, QString::fromUtf8(field)).isEnabled()) << field;
    EXPECT_FALSE(item(Role::CheckBox, QStringLiteral("Notify subscribers")).isEnabled());
    transport.answer(HttpResponse{.status = 422, .body = ""});
    settle();
    press(Qt::Key_Return);
    EXPECT_TRUE(item(Role::EditableText, QStringLiteral("Title")).isEnabled());
}

TEST_F(IncidentsOnScreen, EscapeInTheFormAsksBeforeTypedTextIsLostAndElseClosesIt)
{
    openForm();
    press(Qt::Key_Escape);
    EXPECT_FALSE(asks("New Incident"));
    openForm();
    type("Title", "Mail");
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("Discard Changes?"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(asks("Discard Changes?"));
    EXPECT_TRUE(asks("New Incident"));
    press(Qt::Key_Escape);
    choose("Discard");
    EXPECT_FALSE(asks("New Incident"));
}

TEST_F(IncidentsOnScreen, AFormWithTypedTextStaysWhereACycleLacksItsPageAndAsksBeforeTheMenuLeadsToAnother)
{
    openForm();
    type("Title", "Mail");
    transport.script(pagesURL, 200, R"({"data": null})");
    refresh();
    settle();
    EXPECT_TRUE(asks("New Incident"));
    servePages({"b"}, {});
    refresh();
    state->openStatusPage("b");
    settle();
    EXPECT_TRUE(asks("Discard Changes?"));
    choose("Discard");
    EXPECT_TRUE(names(Role::Dialog).isEmpty());
    EXPECT_EQ((*dashboard->openedPage)->page->id, "b");
    EXPECT_TRUE(shows(QStringLiteral("Current Status")));
}

TEST_F(IncidentsOnScreen, CtrlQInAFormWithTypedTextAsksFirstAndDiscardEndsTheProgram)
{
    QObject::connect(&mainWindow, &MainWindow::quitRequested, &mainWindow, [this] { state->quitApp(); });
    state->guardQuitting(dashboard);
    openForm();
    type("Title", "Mail");
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(asks("Discard Changes?"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(asks("Discard Changes?"));
    EXPECT_TRUE(asks("New Incident"));
    EXPECT_EQ(windows.terminations, 0);
    press(Qt::Key_Q, Qt::ControlModifier);
    choose("Discard");
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(IncidentsOnScreen, CtrlQInAnEditorWithTypedTextAsksFirst)
{
    QObject::connect(&mainWindow, &MainWindow::quitRequested, &mainWindow, [this] { state->quitApp(); });
    state->guardQuitting(dashboard);
    openFirst();
    choose("Add Update");
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(windows.terminations, 1) << "nothing is typed yet";
    (*dashboard->openedPage)->incidents()->detail()->editMessage = "We look";
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(asks("Discard Changes?"));
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(IncidentsOnScreen, OneHasItsButtonsInARowOrWithoutRoomForItBelowEachOtherWithAddUpdateOnTop)
{
    openFirst();
    const auto place = [this](const char* button) {
        const auto& shown = item(Role::Button, QString::fromUtf8(button));
        return shown.mapToScene({0, 0});
    };
    window().resize(760, 900);
    settle();
    EXPECT_LT(place("Acknowledge").x(), place("Resolve").x());
    EXPECT_LT(place("Resolve").x(), place("Escalate").x());
    EXPECT_LT(place("Escalate").x(), place("Add Update").x());
    EXPECT_EQ(place("Acknowledge").y(), place("Add Update").y());

    window().resize(400, 900);
    settle();
    EXPECT_LT(place("Add Update").y(), place("Acknowledge").y());
    EXPECT_EQ(place("Acknowledge").y(), place("Resolve").y());
    EXPECT_LT(place("Acknowledge").x(), place("Resolve").x());
    EXPECT_LT(place("Resolve").y(), place("Escalate").y());
}

TEST_F(IncidentsOnScreen, APageThatIsGoneTakesItsIncidentWithIt)
{
    openFirst();
    servePages({}, {});
    refresh();
    settle();
    EXPECT_TRUE(shows(QStringLiteral("No Status Pages")));
    EXPECT_FALSE(shows(QStringLiteral("Timeline")));
}

TEST_F(IncidentsOnScreen, OfTenThousandOnlyThoseInSightCostAnItem)
{
    std::vector<std::string> many;
    for (int number = 0; number < 10'000; ++number) {
        many.push_back(incident(std::to_string(number), "incident " + std::to_string(number)));
    }
    serve(many);
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_LT(names(Role::ListItem).size(), 60);
    EXPECT_GT(names(Role::ListItem).size(), 5);
}

TEST_F(IncidentsOnScreen, ASeverityThatIsPresentButEmptyHasABadgeInTheRowAsInTheDetail)
{
    const auto pills = [this] {
        int count = 0;
        visit([&count](QQuickItem& each) {
            if (each.isVisible() && each.property("pill").isValid() && each.property("symbolWidth").isValid()) ++count;
        });
        return count;
    };
    serve({incident("1", "Login errors")});
    press(Qt::Key_F5);
    EXPECT_EQ(pills(), 1);
    serve({incident("1", "Login errors", R"(, "severity_name": "")")});
    press(Qt::Key_F5);
    EXPECT_EQ(pills(), 2);
    openFirst();
    EXPECT_EQ(pills(), 2);
}

}  // namespace

}  // namespace larkspan
