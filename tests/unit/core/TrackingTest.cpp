#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/AppStateManager.h"
#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using fakes::PolledAccount;
using platform::HttpResponse;

class Tracking : public testing::Test, public PolledAccount {
protected:
    Tracking() { servePages({"p"}, {{"p", "operational"}}); }

    std::vector<std::string> requestedURLs() const
    {
        std::vector<std::string> urls;
        for (const auto& request : transport.requests) urls.push_back(request.url);
        return urls;
    }
};

TEST_F(Tracking, HoldsIncidentsAndMaintenancesInTheServicesOrder)
{
    serveIncidents({incident("2", "b"), incident("1", "a")});
    serveMaintenances({maintenance("4", "d"), maintenance("3", "c")});
    refresh();
    ASSERT_EQ(state->incidents->size(), 2u);
    EXPECT_EQ(state->incidents->at(0).id, "2");
    EXPECT_EQ(state->incidents->at(1).id, "1");
    ASSERT_EQ(state->maintenances->size(), 2u);
    EXPECT_EQ(state->maintenances->at(0).id, "4");
    EXPECT_EQ(state->maintenances->at(1).id, "3");
}

TEST_F(Tracking, BothFetchesStartTogetherAndOnlyOnceThePagesHaveArrived)
{
    transport.forget(pagesURL);
    transport.forget(incidentsURL);
    transport.forget(maintenancesURL);
    refresh();
    EXPECT_EQ(requestedURLs(), (std::vector<std::string>{pagesURL}));
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
    EXPECT_EQ(requestedURLs(), (std::vector<std::string>{pagesURL, incidentsURL, maintenancesURL}));
}

TEST_F(Tracking, TheOverviewIsAskedOnlyOnceBothHaveArrived)
{
    transport.forget(incidentsURL);
    transport.forget(maintenancesURL);
    refresh();
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
    EXPECT_EQ(transport.requests.size(), 3u);
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
    EXPECT_EQ(transport.requests.back().url, overviewURL);
}

TEST_F(Tracking, AFailingPagesFetchStartsNeither)
{
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_EQ(requestedURLs(), (std::vector<std::string>{pagesURL}));
}

TEST_F(Tracking, WithAFailingIncidentFetchTheErrorIsTheIncidentsAndNeitherListChanges)
{
    serveIncidents({incident("1", "a")});
    serveMaintenances({maintenance("2", "b")});
    refresh();
    transport.script(incidentsURL, 502, "");
    serveMaintenances({});
    refresh();
    EXPECT_EQ(error(), "Server returned HTTP status code 502.");
    EXPECT_EQ(state->incidents->size(), 1u);
    EXPECT_EQ(state->maintenances->size(), 1u);
}

TEST_F(Tracking, WithBothFetchesFailingTheErrorOfTheIncidentsIsReported)
{
    transport.script(incidentsURL, 501, "");
    transport.script(maintenancesURL, 502, "");
    refresh();
    EXPECT_EQ(error(), "Server returned HTTP status code 501.");
}

TEST_F(Tracking, WithBothFailingAndTheMaintenancesFirstTheErrorOfTheIncidentsIsReportedAllTheSame)
{
    transport.forget(incidentsURL);
    transport.script(maintenancesURL, 502, "");
    refresh();
    EXPECT_FALSE(*state->refreshError) << "the incidents are still awaited";
    transport.answer(HttpResponse{.status = 501, .body = ""});
    run();
    EXPECT_EQ(error(), "Server returned HTTP status code 501.");
}

TEST_F(Tracking, AFailureOfTheIncidentsCancelsTheMaintenancesAndWaitsForThemToEnd)
{
    transport.forget(maintenancesURL);
    transport.script(incidentsURL, 500, "");
    refresh();
    ASSERT_EQ(transport.pending.size(), 1u);
    EXPECT_TRUE(transport.pending[0].stop.stop_requested());
    EXPECT_FALSE(*state->refreshError) << "the other fetch has not ended yet";

    transport.answer(platform::URLError::Code::cancelled);
    run();
    EXPECT_EQ(error(), "Server returned HTTP status code 500.");
}

TEST_F(Tracking, AFailureOfTheMaintenancesAloneFailsTheCycleWithTheirError)
{
    transport.script(maintenancesURL, 503, "");
    serveIncidents({incident("1", "a")});
    refresh();
    EXPECT_EQ(error(), "Server returned HTTP status code 503.");
    EXPECT_TRUE(state->statusPages->empty());
    EXPECT_TRUE(state->incidents->empty());
}

TEST_F(Tracking, WithTheMaintenancesFailingFirstAndTheIncidentsSucceedingLaterTheErrorIsTheMaintenances)
{
    transport.forget(incidentsURL);
    transport.script(maintenancesURL, 502, "");
    refresh();
    EXPECT_FALSE(*state->refreshError) << "the incidents are still awaited";
    transport.answer(HttpResponse{.status = 200, .body = "[" + incident("1", "a") + "]"});
    run();
    EXPECT_EQ(error(), "Server returned HTTP status code 502.");
    EXPECT_TRUE(state->incidents->empty());
    EXPECT_EQ(requestedURLs(), (std::vector<std::string>{pagesURL, incidentsURL, maintenancesURL}));
}

TEST_F(Tracking, AnAccountWithNoIncidentsAndNoMaintenancesPublishesTwoEmptyListsAndCompletes)
{
    serveIncidents({incident("1", "a")});
    serveMaintenances({maintenance("2", "b")});
    refresh();
    serveIncidents({});
    serveMaintenances({});
    refresh();
    EXPECT_TRUE(state->incidents->empty());
    EXPECT_TRUE(state->maintenances->empty());
    EXPECT_FALSE(*state->refreshError);
    EXPECT_EQ(*state->lastRefresh, clock.time);
}

TEST_F(Tracking, AFailedCycleFollowedByAGoodOnePublishesTheFreshListsAndClearsTheError)
{
    transport.script(incidentsURL, 500, "");
    refresh();
    serveIncidents({incident("1", "a")});
    refresh();
    EXPECT_EQ(state->incidents->size(), 1u);
    EXPECT_FALSE(*state->refreshError);
}

TEST_F(Tracking, AFailureOfTheOverviewFailsNothing)
{
    serveIncidents({incident("1", "a")});
    transport.script(overviewURL, 500, "");
    refresh();
    EXPECT_EQ(state->incidents->size(), 1u);
    EXPECT_FALSE(*state->refreshError);
}

struct MalformedRow {
    std::string name;
    std::string incidents;
    std::string maintenances;
    std::string words;
};

class MalformedRecord : public Tracking, public testing::WithParamInterface<MalformedRow> {};

TEST_P(MalformedRecord, FailsTheWholeCycleAndTheLastGoodDataStays)
{
    serveIncidents({incident("1", "a")});
    serveMaintenances({maintenance("2", "b")});
    refresh();
    servePages({"other"}, {});
    transport.script(incidentsURL, 200, GetParam().incidents);
    transport.script(maintenancesURL, 200, GetParam().maintenances);
    refresh();
    EXPECT_EQ(error(), GetParam().words);
    EXPECT_EQ(state->statusPages->at(0).id, "p");
    EXPECT_EQ(state->incidents->size(), 1u);
    EXPECT_EQ(state->maintenances->size(), 1u);
    EXPECT_EQ(*state->overallStatus, OverallStatus::down) << "a held outage is not hidden";
    EXPECT_TRUE(notifications.added.empty());
}

INSTANTIATE_TEST_SUITE_P(EachFault, MalformedRecord,
    testing::Values(
        MalformedRow{"IncidentWithoutATitle", R"({"data": [{"id": "1", "created_at": "2026-11-20T09:30:00Z"}]})", "[]",
            "data[0].title: The key is missing"},
        MalformedRow{"IncidentWithABadDate",
            R"({"data": [{"id": "1", "title": "a", "created_at": "2026-11-20T09:30:00Z"}, {"id": "2", "title": "b", "created_at": "n/a"}]})",
            "[]", "data[1].created_at: Cannot decode date: n/a"},
        MalformedRow{"IncidentsThatAreNoList", R"({"data": 1})", "[]", "data: Expected a list but found a number"},
        MalformedRow{"MaintenanceWithABadDate", "[]", R"({"data": [{"id": 2, "title": "b", "end_at": "tomorrow"}]})",
            "data[0].end_at: Cannot decode date: tomorrow"},
        MalformedRow{"MaintenancesThatAreNoJSON", "[]", "<html>", "The server’s answer: Not valid JSON"}),
    [](const auto& row) { return row.param.name; });

TEST_F(Tracking, PublishesPagesThenIncidentsThenMaintenances)
{
    serveIncidents({incident("1", "a")});
    serveMaintenances({maintenance("2", "b")});
    std::vector<std::string> order;
    const auto subscription = state->objectWillChange([&] { order.push_back(snapshot()); });
    refresh();
    order.push_back(snapshot());
    EXPECT_EQ(order,
        (std::vector<std::string>{
            "pages 0, unknown, idle, never",
            "pages 0, unknown, loading, never",
            "pages 0, unknown, loading, never",
            "pages 1, unknown, loading, never",
            "pages 1 incidents 1, unknown, loading, never",
            "pages 1 incidents 1 maintenances 1, unknown, loading, never",
            "pages 1 incidents 1 maintenances 1, down, loading, never",
            "pages 1 incidents 1 maintenances 1, down, loading, refreshed",
            "pages 1 incidents 1 maintenances 1, down, loading, refreshed, seeded",
            "pages 1 incidents 1 maintenances 1, down, idle, refreshed, seeded",
        }));
}

TEST_F(Tracking, ClearAccountDataForgetsBothLists)
{
    serveIncidents({incident("1", "a")});
    serveMaintenances({maintenance("2", "b")});
    refresh();
    state->clearAccountData();
    EXPECT_TRUE(state->incidents->empty());
    EXPECT_TRUE(state->maintenances->empty());
}

TEST_F(Tracking, ACycleWhoseTransportGoesAwayInMidStageIsUnwound)
{
    transport.forget(incidentsURL);
    transport.forget(maintenancesURL);
    refresh();
    const std::weak_ptr<AppStateManager> weak = state;
    state.reset();
    transport.pending.clear();
    run();
    EXPECT_TRUE(weak.expired());
}

}  // namespace

}  // namespace larkspan::core
