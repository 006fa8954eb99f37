#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

/// Screens that are left, or whose page is removed, while the service has not answered yet.
class IncidentsClosedDuringARequest : public IncidentsOnScreen {
protected:
    /// Removes the page from the account while it is open.
    void losePage()
    {
        servePages({"b"}, {});
        refresh();
        settle();
    }

    void answer(int status, const std::string& body)
    {
        transport.answer(HttpResponse{.status = status, .body = body});
        settle();
    }

    void expectDashboard(const QStringList& pages)
    {
        EXPECT_EQ(names(Role::ListItem), pages);
        EXPECT_TRUE(names(Role::Dialog).isEmpty());
        EXPECT_TRUE(names(Role::ProgressBar).isEmpty());
    }
};

TEST_F(IncidentsClosedDuringARequest, APageThatIsLeftWhileItsIncidentsLoadStaysClosed)
{
    transport.forget(pageIncidentsURL);
    press(Qt::Key_F5);
    press(Qt::Key_Escape);
    answer(200, "[" + incident("9", "Too late") + "]");
    expectDashboard({"a"});
}

TEST_F(IncidentsClosedDuringARequest, ATabThatIsLeftWhileItLoadsFetchesAnewWhenItIsBack)
{
    transport.forget(pageIncidentsURL);
    press(Qt::Key_F5);
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Loading Incidents...")));
    answer(200, "[" + incident("9", "For nobody") + "]");
    EXPECT_TRUE(names(Role::ListItem).isEmpty());
    answer(200, "[" + incident("1", "Login errors") + "]");
    EXPECT_EQ(names(Role::ListItem), QStringList{"Login errors"});
}

TEST_F(
    IncidentsClosedDuringARequest, AnIncidentThatIsLeftByThePanelWhileItIsWorkedOnStaysClosedAndTellsNobodyOfARefusal)
{
    servePages({"a", "b"}, {});
    refresh();
    for (const int status : {200, 409}) {
        state->openStatusPage("a");
        settle();
        press(Qt::Key_2, Qt::ControlModifier);
        openFirst();
        choose("Escalate");
        state->openStatusPage("b");
        answer(status, "");
        EXPECT_TRUE(names(Role::Heading).contains(QStringLiteral("b")));
        EXPECT_TRUE(names(Role::Dialog).isEmpty());
        EXPECT_TRUE(names(Role::ProgressBar).isEmpty());
    }
}

TEST_F(IncidentsClosedDuringARequest, AnIncidentWhosePageGoesWhileItIsWorkedOnTellsHowThatEndsAndGoesWithTheNextCycle)
{
    openFirst();
    choose("Escalate");
    losePage();
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("In progress")));
    answer(409, "");
    EXPECT_TRUE(shows(QStringLiteral("Server returned HTTP status code 409.")));
    press(Qt::Key_Return);
    losePage();
    expectDashboard({"b"});
}

TEST_F(IncidentsClosedDuringARequest, AFormStaysUntilItsIncidentIsCreated)
{
    openForm();
    type("Title", "Mail");
    transport.forget(createURL);
    choose("Save");
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Creating...")));
    press(Qt::Key_Escape);
    EXPECT_TRUE(asks("New Incident"));
    EXPECT_FALSE(asks("Discard Changes?"));
    EXPECT_FALSE(isEnabled("Cancel"));
    answer(201, incident("3", "Mail"));
    EXPECT_FALSE(asks("New Incident"));
    EXPECT_EQ(names(Role::ListItem).value(0), QStringLiteral("Mail"));
}

TEST_F(IncidentsClosedDuringARequest, AFormWhosePageGoesWhileItIsSentShowsHowThatEndsAndThePageGoesWithTheNextCycle)
{
    openForm();
    type("Title", "Mail");
    transport.forget(createURL);
    choose("Save");
    serveIncidents({});
    losePage();
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Creating...")));
    answer(201, incident("3", "Mail"));
    EXPECT_FALSE(asks("New Incident"));
    EXPECT_EQ(names(Role::ListItem).value(0), QStringLiteral("Mail"));
    losePage();
    expectDashboard({"b"});
}

TEST_F(IncidentsClosedDuringARequest, AFormThatIsLeftWhileItsChoicesLoadStaysClosed)
{
    choose("New Incident");
    EXPECT_TRUE(names(Role::ProgressBar).contains(QStringLiteral("Loading components…")));
    press(Qt::Key_Escape);
    EXPECT_FALSE(asks("New Incident"));
    answer(500, "");
    answer(500, "");
    EXPECT_TRUE(names(Role::Dialog).isEmpty());
    EXPECT_EQ(names(Role::ListItem), (QStringList{"Login errors", "Slow checkout"}));
}

}  // namespace

}  // namespace larkspan
