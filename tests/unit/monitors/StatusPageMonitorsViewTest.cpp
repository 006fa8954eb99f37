#include "monitors/StatusPageMonitorsView.h"

#include <gtest/gtest.h>

#include "monitors/MonitorsOfAPage.h"

namespace larkspan::monitors {

namespace {

using platform::HttpResponse;
using presentation::Content;
using presentation::Placeholder;

TEST_F(MonitorsOfAPage, AnAccountWithMonitorsOnOtherPagesOnlyShowsNoMonitors)
{
    serve({record("1", R"("status_page_id": "other")")});
    appear();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "antenna.radiowaves.left.and.right",
            .title = "No Monitors",
            .text = "No monitors configured for this status page."}));
}

TEST_F(MonitorsOfAPage, MonitorsOfOtherPagesAndMonitorsWithoutAPageNeverAppearThoughTheServiceReturnedThem)
{
    serve({record("c"), record("b", R"("status_page_id": "other")"), record("x", R"("status_page_id": null)"),
        record("a")});
    appear();
    EXPECT_EQ(ids(), (Words{"c", "a"}));
}

TEST_F(MonitorsOfAPage, RaiseNoAlertWhenAReloadFails)
{
    serve({record("1")});
    appear();
    transport.script(listURL, 500, "");
    view->refresh();
    run();
    EXPECT_EQ(view->alert()->words(), "");
}

TEST_F(MonitorsOfAPage, AreLoadedAnewBehindOneOfWhichNobodyKnowsWhetherItWasPaused)
{
    serve({record("1")});
    appear();
    open("1");
    view->detail()->press("pauseResume");
    run();
    serve({record("1", R"("status_page_id": "p", "enabled": false)")});
    transport.answer(platform::URLError::Code::timedOut);
    run();
    EXPECT_EQ(view->rows().front().status, "Paused");
    EXPECT_EQ(view->detail()->action->alert.words(), "The request timed out.");
    EXPECT_EQ(transport.requests.size(), 2u) << "the order, and the list once";
}

TEST_F(MonitorsOfAPage, ARowKeepsItsMetricsForAsLongAsItsMonitorIsInTheList)
{
    serve({record("1"), record("2")});
    transport.script(metricsURL("1"), 200, R"({"metrics": {"1": {"avg_ms": 5}}})");
    appear();
    view->toggleMetrics("1");
    run();
    EXPECT_TRUE(view->rows().front().isOpen);
    EXPECT_FALSE(view->rows().back().isOpen);

    serve({record("2"), record("1")});
    view->refresh();
    run();
    EXPECT_TRUE(view->rows().back().isOpen);
    EXPECT_EQ(view->rowViews().size(), 1u);

    serve({record("2")});
    view->refresh();
    run();
    EXPECT_TRUE(view->rowViews().empty());
}

TEST_F(MonitorsOfAPage, ARowThatIsMadeAnewHasLostItsMetricsAndStartsClosed)
{
    serve({record("1")});
    transport.script(metricsURL("1"), 200, R"({"metrics": {"1": {"avg_ms": 5}}})");
    appear();
    view->toggleMetrics("1");
    run();
    serve({});
    view->refresh();
    run();
    serve({record("1")});
    view->refresh();
    run();
    EXPECT_FALSE(view->rows().front().isOpen);
    EXPECT_TRUE(view->rows().front().badges.empty());
}

TEST_F(MonitorsOfAPage, ALaterRefreshOfTheListDoesNotRenewTheMetrics)
{
    serve({record("1")});
    transport.script(metricsURL("1"), 200, R"({"metrics": {"1": {"avg_ms": 5}}})");
    appear();
    view->toggleMetrics("1");
    run();
    transport.requests.clear();
    view->refresh();
    run();
    EXPECT_EQ(sent(), Words{"GET /user/api/v1/monitors"});
}

TEST_F(MonitorsOfAPage, AMetricsFailureTouchesNoOtherRowAndRaisesNoAlert)
{
    serve({record("1"), record("2")});
    transport.script(metricsURL("1"), 500, "");
    appear();
    const auto other = view->rows().back();
    view->toggleMetrics("1");
    run();
    EXPECT_EQ(view->rows().back(), other);
    EXPECT_EQ(view->alert()->words(), "");
}

TEST_F(MonitorsOfAPage, OpenNothingForARowThatHasGone)
{
    serve({record("1")});
    appear();
    view->openMonitor("9");
    view->toggleMetrics("9");
    view->press("9", "checkNow");
    EXPECT_FALSE(view->presentedMonitor.isOpen());
    EXPECT_TRUE(view->rowViews().empty());
    EXPECT_TRUE(view->viewModel->performingActions->empty());
}

TEST_F(MonitorsOfAPage, OpenTheMonitorOfARowAndGoingBackClearsItWithoutALoad)
{
    serve({record("1"), record("2")});
    appear();
    transport.requests.clear();
    view->openMonitor("2");
    ASSERT_TRUE(view->presentedMonitor.isOpen());
    EXPECT_EQ(view->presentedMonitor.screen()->id(), "2");
    ASSERT_TRUE(view->detail());
    view->closeMonitor();
    run();
    EXPECT_FALSE(view->presentedMonitor.isOpen());
    EXPECT_FALSE(view->detail());
    EXPECT_EQ(sent(), Words{});
}

TEST_F(MonitorsOfAPage, PatchTheRowOfTheMonitorThatItsDetailRefreshed)
{
    serve({record("1"), record("2")});
    transport.script(actionURL("2", "pause"), 200, "");
    appear();
    view->openMonitor("2");
    serve({record("2", R"("status_page_id": "p", "enabled": false)"), record("1"), record("3")});
    view->detail()->press("pauseResume");
    run();
    EXPECT_EQ(ids(), (Words{"1", "2"}));
    EXPECT_EQ(view->rows().back().status, "Paused");
}

TEST_F(MonitorsOfAPage, KeepTheOldRecordIfItsDetailPausesItAndTheRefetchFails)
{
    serve({record("1")});
    transport.script(actionURL("1", "pause"), 200, "");
    appear();
    view->openMonitor("1");
    transport.script(std::string(listURL), 500, "");
    view->detail()->press("pauseResume");
    run();
    EXPECT_EQ(
        sent(), (Words{"GET /user/api/v1/monitors", "POST /user/api/monitors/1/pause", "GET /user/api/v1/monitors"}))
        << "the list is not fetched again";
    EXPECT_EQ(view->detail()->buttons().front().label, "Pause Monitor");
    EXPECT_NE(view->rows().front().status, "Paused");
    EXPECT_EQ(view->detail()->action->alert.words(), "Server returned HTTP status code 500.");
}

TEST_F(MonitorsOfAPage, ARowIsBusyAlsoWhileItsMonitorIsPausedFromItsOwnScreen)
{
    serve({record("1"), record("2")});
    transport.script(actionURL("2", "pause"), 200, "");
    appear();
    view->openMonitor("2");
    view->detail()->press("pauseResume");
    view->closeMonitor();
    EXPECT_FALSE(view->rows().back().buttons.front().isEnabled);
    EXPECT_TRUE(view->rows().front().buttons.front().isEnabled);
    view->press("2", "pauseResume");
    run();
    EXPECT_EQ(
        sent(), (Words{"GET /user/api/v1/monitors", "POST /user/api/monitors/2/pause", "GET /user/api/v1/monitors"}));
    EXPECT_TRUE(view->rows().back().buttons.front().isEnabled);
}

TEST_F(MonitorsOfAPage, OneThatIsOpenedWhileItIsPausedFromItsRowIsBusyUntilThenAndThenSaysSo)
{
    serve({record("1"), record("2")});
    transport.script(actionURL("2", "pause"), 200, "");
    appear();
    view->press("2", "pauseResume");
    view->openMonitor("2");
    int notices = 0;
    const auto subscriptions = view->detail()->observe([&notices] { ++notices; });
    EXPECT_TRUE(view->detail()->isBusy());
    view->detail()->press("pauseResume");
    view->detail()->perform(MonitorDetailView::DetailAction::checkNow);
    serve({record("1"), record("2", R"("status_page_id": "p", "enabled": false)")});
    run();
    EXPECT_EQ(
        sent(), (Words{"GET /user/api/v1/monitors", "POST /user/api/monitors/2/pause", "GET /user/api/v1/monitors"}));
    EXPECT_FALSE(view->detail()->isBusy());
    EXPECT_GT(notices, 0);
    EXPECT_EQ(view->detail()->buttons().front().label, "Resume Monitor");
}

TEST_F(MonitorsOfAPage, OneThatIsOpenedWhileAnotherIsPausedIsNotBusy)
{
    serve({record("1"), record("2")});
    appear();
    view->press("1", "pauseResume");
    view->openMonitor("2");
    EXPECT_FALSE(view->detail()->isBusy());
    EXPECT_TRUE(view->detail()->buttons().front().isEnabled);
}

TEST_F(MonitorsOfAPage, PatchNothingWhereTheMonitorHasLeftTheListMeanwhile)
{
    serve({record("1"), record("2")});
    transport.script(actionURL("2", "pause"), 200, "");
    appear();
    view->openMonitor("2");
    serve({record("1")});
    view->refresh();
    run();
    serve({record("2"), record("1")});
    view->detail()->press("pauseResume");
    run();
    EXPECT_EQ(ids(), Words{"1"});
}

TEST_F(MonitorsOfAPage, ThatAreLeftDuringALoadAndAnActionAreFreedAfterThem)
{
    serve({record("1")});
    appear();
    view->press("1", "checkNow");
    view->toggleMetrics("1");
    run();
    const std::weak_ptr<StatusPageMonitorsViewModel> held = view->viewModel;
    view.reset();
    while (!transport.pending.empty()) {
        transport.answer(HttpResponse{200, "{}"});
        run();
    }
    EXPECT_TRUE(held.expired());
}

TEST_F(MonitorsOfAPage, TellTheirObserversOfLoadsActionsAndRowsThatOpen)
{
    serve({record("1")});
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    appear();
    EXPECT_GT(std::exchange(changes, 0), 0);
    view->toggleMetrics("1");
    EXPECT_GT(std::exchange(changes, 0), 0);
    view->press("1", "checkNow");
    EXPECT_GT(std::exchange(changes, 0), 0);
    view->openMonitor("1");
    EXPECT_GT(std::exchange(changes, 0), 0);
    view->closeMonitor();
    EXPECT_GT(std::exchange(changes, 0), 0);
    view->closeMonitor();
    EXPECT_EQ(changes, 0);
}

TEST_F(MonitorsOfAPage, OfTwoWithOneIdEachRowOpensItsOwn)
{
    serve({record("1"), record("1", R"("status_page_id": "p", "state": "down")")});
    transport.script(metricsURL("1"), 200, R"({"metrics": {"1": {"avg_ms": 5}}})");
    appear();
    const auto second = view->rows().back().id;
    view->openMonitor(second);
    EXPECT_EQ(view->detail()->currentMonitor->status, model::MonitorStatus::down);
    view->closeMonitor();

    view->toggleMetrics(second);
    run();
    EXPECT_FALSE(view->rows().front().isOpen);
    EXPECT_TRUE(view->rows().back().isOpen);
    EXPECT_EQ(transport.requests.back().url, metricsURL("1"));
    view->refresh();
    run();
    EXPECT_TRUE(view->rows().back().isOpen);
}

}  // namespace

}  // namespace larkspan::monitors
