#include "maintenances/StatusPageMaintenancesView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "maintenances/MaintenancesOfAPage.h"

namespace larkspan::maintenances {

namespace {

using platform::HttpResponse;
using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

TEST_F(MaintenancesOfAPage, DuringTheFirstLoadAreProgress)
{
    view->appear();
    EXPECT_EQ(view->content(), Content::loading);
    EXPECT_EQ(view->placeholder(), (Placeholder{.text = "Loading Maintenances...", .showsProgress = true}));
}

TEST_F(MaintenancesOfAPage, ThatCouldNotBeLoadedSayWhyAndRetryShowsProgressAndThenTheList)
{
    transport.script(maintenancesURL, 500, "");
    appear();
    EXPECT_EQ(view->content(), Content::failure);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::yellow,
            .text = "Server returned HTTP status code 500.",
            .offersRetry = true}));
    serve({workOfThePage("1")});
    view->refresh();
    EXPECT_EQ(view->content(), Content::loading);
    run();
    EXPECT_EQ(view->content(), Content::records);
    EXPECT_EQ(view->placeholder(), Placeholder{});
}

TEST_F(MaintenancesOfAPage, WithoutOneSayWhatWouldBeHere)
{
    serve({});
    appear();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "calendar.badge.clock",
            .title = "No scheduled maintenances",
            .text = "Maintenance windows will appear here."}));
}

TEST_F(MaintenancesOfAPage, AreThoseThatNameThePageAndNoOther)
{
    serve({R"({"id": "other", "title": "a", "status_page_id": "q"})", workOfThePage("2"),
        R"({"id": "none", "title": "a"})", R"({"id": "null", "title": "a", "status_page_id": null})",
        workOfThePage("1")});
    appear();
    EXPECT_EQ(ids(), (Words{"2", "1"})) << "in the service's order";
    EXPECT_EQ(transport.requests.back().url, maintenancesURL) << "asked for the whole account";
}

TEST_F(MaintenancesOfAPage, AreRowsWithTheirStatusAndTheDayOfTheirStart)
{
    serve({workOfThePage("a", R"(, "start_at": "2026-11-21T09:00:00Z")"),
        workOfThePage("b", R"(, "start_at": "2026-11-20T08:00:00Z")"),
        workOfThePage("c", R"(, "end_at": "2026-11-20T08:00:00Z")"), workOfThePage("d", R"(, "status": "cancelled")")});
    appear();
    EXPECT_EQ(view->rows(),
        (std::vector<MaintenanceRow>{{"a", "Work a", {"Scheduled", Tone::blue}, "2026-11-21"},
            {"b", "Work b", {"In Progress", Tone::yellow}, "2026-11-20"},
            {"c", "Work c", {"Completed", Tone::green}, ""}, {"d", "Work d", {"Cancelled", Tone::gray}, ""}}));
}

TEST_F(MaintenancesOfAPage, KeepTheirRowsAndShowNoErrorWhenAReloadFails)
{
    serve({workOfThePage("1")});
    appear();
    transport.script(maintenancesURL, 500, "");
    view->refresh();
    EXPECT_EQ(view->content(), Content::records);
    run();
    EXPECT_EQ(view->content(), Content::records);
    EXPECT_EQ(ids(), Words{"1"});
    EXPECT_EQ(view->placeholder(), Placeholder{});
}

TEST_F(MaintenancesOfAPage, LoadedTwiceAtOnceAreThoseOfTheLastToFinish)
{
    view->appear();
    view->appear();
    run();
    ASSERT_EQ(transport.pending.size(), 2u);
    transport.answer(HttpResponse{200, "[" + workOfThePage("1") + "]"});
    transport.answer(HttpResponse{200, "[" + workOfThePage("2") + "]"});
    run();
    EXPECT_EQ(ids(), Words{"2"});
}

TEST_F(MaintenancesOfAPage, AreWorthAPromptOfTheStoreOnlyWhenTheUserAsks)
{
    appear();
    EXPECT_EQ(credentials.promptsAllowed, 0);
    view->refresh();
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(MaintenancesOfAPage, ThatAreLeftDuringALoadAreFreedAfterIt)
{
    appear();
    const std::weak_ptr<StatusPageMaintenancesViewModel> held = view->viewModel;
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(MaintenancesOfAPage, TellTheirObserversOfLoadsAndOfWhatStandsInFront)
{
    serve({workOfThePage("1")});
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    appear();
    EXPECT_GT(changes, 0);
    const int before = changes;
    view->openMaintenance("1");
    EXPECT_EQ(changes, before + 1);
}

}  // namespace

}  // namespace larkspan::maintenances
