#include <gtest/gtest.h>

#include <tuple>

#include "fakes/Refusal.h"
#include "monitors/MonitorsOfAPage.h"

namespace larkspan::monitors {

namespace {

using platform::HttpResponse;

const std::string paused = R"("status_page_id": "p", "enabled": false)";
const std::string down = R"("status_page_id": "p", "state": "down")";

class ActionInTheList : public MonitorsOfAPage {
protected:
    ActionInTheList()
    {
        serve({record("1"), record("2", paused), record("3")});
        appear();
        transport.requests.clear();
    }

    void accept(const std::string& id, const std::string& action) { transport.script(actionURL(id, action), 200, ""); }

    std::string labelOf(const std::string& id) const
    {
        for (const auto& row : view->rows()) {
            if (row.id == id) return row.buttons.front().label + (row.buttons.front().isEnabled ? "" : " (disabled)");
        }
        return "";
    }
};

TEST_F(ActionInTheList, PausesWhatRunsThenFetchesItsRow)
{
    accept("1", "pause");
    serve({record("3"), record("1", paused)});
    view->press("1", "pauseResume");
    EXPECT_EQ(labelOf("1"), "Pause (disabled)");
    run();
    EXPECT_EQ(sent(), (Words{"POST /user/api/monitors/1/pause", "GET /user/api/v1/monitors"}));
    EXPECT_EQ(labelOf("1"), "Resume");
    EXPECT_EQ(ids(), (Words{"1", "2", "3"})) << "order and all other rows are untouched";
}

TEST_F(ActionInTheList, ResumesWhatIsPausedThenFetchesItsRow)
{
    accept("2", "resume");
    serve({record("2")});
    view->press("2", "pauseResume");
    run();
    EXPECT_EQ(sent(), (Words{"POST /user/api/monitors/2/resume", "GET /user/api/v1/monitors"}));
    EXPECT_EQ(labelOf("2"), "Pause");
}

TEST_F(ActionInTheList, ChecksWithoutADelayAndMayFindTheStateFromBeforeTheCheck)
{
    accept("1", "run");
    view->press("1", "checkNow");
    run();
    EXPECT_EQ(sent(), (Words{"POST /user/api/monitors/1/run", "GET /user/api/v1/monitors"}));
    EXPECT_EQ(view->rows().front().status, "Operational");
    EXPECT_EQ(labelOf("1"), "Pause");
}

TEST_F(ActionInTheList, ReadsTheRecordPassedInAndNotTheCurrentList)
{
    accept("1", "resume");
    auto passed = view->viewModel->monitors->front();
    passed.isPaused = true;
    support::start(main, view->viewModel->togglePause(passed));
    run();
    EXPECT_EQ(sent().front(), "POST /user/api/monitors/1/resume");
}

TEST_F(ActionInTheList, AfterASuccessfulPauseWhoseRefetchFailsTheRowStillSaysItIsRunningAndItsButtonPause)
{
    accept("1", "pause");
    transport.script(listURL, 500, "");
    view->press("1", "pauseResume");
    run();
    EXPECT_EQ(labelOf("1"), "Pause");
    EXPECT_EQ(view->rows().front().status, "Operational");
    EXPECT_EQ(view->alert()->words(), "") << "a failed refetch is told to nobody";
    EXPECT_FALSE(*view->viewModel->error);
}

TEST_F(ActionInTheList, AfterASuccessfulRefetchInWhichTheMonitorHasGoneTheRowStaysInTheListUnchanged)
{
    accept("1", "pause");
    serve({record("3")});
    const auto before = view->rows();
    view->press("1", "pauseResume");
    run();
    EXPECT_EQ(view->rows(), before);
}

TEST_F(ActionInTheList, AMonitorThatHasMovedToAnotherPageSinceTheLoadIsTreatedAsGone)
{
    accept("1", "pause");
    serve({record("1", R"("status_page_id": "other", "enabled": false)")});
    const auto before = view->rows();
    view->press("1", "pauseResume");
    run();
    EXPECT_EQ(view->rows(), before);
}

TEST_F(ActionInTheList, ThatOutlivesItsRowPatchesNothing)
{
    accept("1", "pause");
    transport.forget(listURL);
    view->press("1", "pauseResume");
    run();
    view->viewModel->monitors = {};
    transport.answer(HttpResponse{200, "[" + record("1", paused) + "]"});
    run();
    EXPECT_EQ(ids(), Words{});
    EXPECT_TRUE(view->viewModel->performingActions->empty());
}

TEST_F(ActionInTheList, PausingOneMonitorLeavesTheOtherRowsButtonsEnabled)
{
    view->press("1", "pauseResume");
    run();
    EXPECT_EQ(labelOf("1"), "Pause (disabled)");
    EXPECT_EQ(labelOf("2"), "Resume");
    EXPECT_EQ(labelOf("3"), "Pause");
}

TEST_F(ActionInTheList, OnTwoMonitorsRunSideBySideAndEachRowReportsOnlyItsOwn)
{
    view->press("1", "checkNow");
    view->press("3", "checkNow");
    run();
    EXPECT_EQ(sent(), (Words{"POST /user/api/monitors/1/run", "POST /user/api/monitors/3/run"}));
    transport.answer(HttpResponse{200, ""});
    run();
    EXPECT_EQ(labelOf("1"), "Pause");
    EXPECT_EQ(labelOf("3"), "Pause (disabled)");
}

TEST_F(ActionInTheList, PressedTwiceQuicklySendsOnce)
{
    view->press("1", "checkNow");
    view->press("1", "checkNow");
    view->press("1", "pauseResume");
    run();
    EXPECT_EQ(sent(), Words{"POST /user/api/monitors/1/run"});
}

TEST_F(ActionInTheList, PatchesNothingButItsOwnRow)
{
    accept("1", "run");
    serve({record("1", down), record("2"), record("3", down)});
    view->press("1", "checkNow");
    run();
    EXPECT_EQ(view->rows()[0].status, "Down");
    EXPECT_EQ(view->rows()[1].status, "Paused");
    EXPECT_EQ(view->rows()[2].status, "Operational");
}

TEST_F(ActionInTheList, RefusedWhileTheAlertOfAnotherIsUpIsToldAfterThat)
{
    view->press("1", "checkNow");
    view->press("3", "checkNow");
    run();
    transport.answer(HttpResponse{409, ""});
    run();
    const int first = view->alert()->number();
    transport.answer(HttpResponse{409, ""});
    run();
    EXPECT_EQ(view->alert()->number(), first);
    view->alert()->dismiss();
    EXPECT_EQ(view->alert()->words(), "Server returned HTTP status code 409.");
    EXPECT_NE(view->alert()->number(), first);
    view->alert()->dismiss();
    EXPECT_EQ(view->alert()->words(), "");
}

class RefusedInTheList : public ActionInTheList,
                         public testing::WithParamInterface<std::tuple<const char*, fakes::Refusal>> {};

TEST_P(RefusedInTheList, IsAnAlertThatLeavesTheRowAsItWasAndTakesTheBusyMark)
{
    const auto& [action, refusal] = GetParam();
    const std::string order = action;
    const std::string monitor = order == "resume" ? "2" : "1";
    transport.script(actionURL(monitor, order), refusal.answer);
    const auto before = view->rows();
    view->press(monitor, order == "run" ? "checkNow" : "pauseResume");
    run();
    EXPECT_EQ(view->alert()->words(), refusal.alert);
    EXPECT_EQ(sent(), Words{"POST /user/api/monitors/" + monitor + "/" + order}) << "no refresh follows";
    EXPECT_EQ(view->rows(), before);
    view->alert()->dismiss();
    EXPECT_EQ(view->alert()->words(), "");
    EXPECT_EQ(**view->viewModel->errorMessage, refusal.alert) << "the text stays for whoever asks";
}

INSTANTIATE_TEST_SUITE_P(EachActionAndAnswer, RefusedInTheList,
    testing::Combine(testing::Values("pause", "resume", "run"), testing::ValuesIn(fakes::refusals())));

}  // namespace

}  // namespace larkspan::monitors
