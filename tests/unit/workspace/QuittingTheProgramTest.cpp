#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "PageOfTheDashboard.h"

namespace larkspan::workspace {

namespace {

class QuittingTheProgram : public PageOfTheDashboard {
protected:
    QuittingTheProgram() { state->guardQuitting(dashboard); }
};

TEST_F(QuittingTheProgram, EndsItWhereNothingWouldBeLost)
{
    dashboard->openPage("a");
    state->quitApp();
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(QuittingTheProgram, WithTypedTextAsksInTheWindowFirst)
{
    const auto window = windows.addWindow();
    const auto form = writeIncident();
    state->quitApp();
    EXPECT_EQ(windows.terminations, 0);
    EXPECT_TRUE(*form->showDiscardConfirmation);
    EXPECT_EQ(window->calls, (std::vector<std::string>{"deminiaturize", "makeKeyAndOrderFront"}));
    form->discardChanges();
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(QuittingTheProgram, IsForgottenWhereTheUserGoesOnTyping)
{
    const auto form = writeIncident();
    state->quitApp();
    form->keepEditing();
    form->requestClose();
    form->discardChanges();
    EXPECT_EQ(windows.terminations, 0);
}

TEST_F(QuittingTheProgram, EndsItByItselfWhenTheServiceHasTakenTheTextMeanwhile)
{
    const auto form = writeIncident();
    transport.script(incidentsURL, 201, incident("9", "Mail is down"));
    form->save();
    state->quitApp();
    EXPECT_EQ(windows.terminations, 0);
    run();
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(QuittingTheProgram, EndsItWhereTheDashboardHasGone)
{
    writeIncident();
    dashboard.reset();
    state->quitApp();
    EXPECT_EQ(windows.terminations, 1);
}

}  // namespace

}  // namespace larkspan::workspace
