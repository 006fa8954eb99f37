#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/AppStateManager.h"
#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using fakes::PolledAccount;
using platform::NotificationRequest;

class ChangesOfTheAccount : public testing::Test, public PolledAccount {
protected:
    ChangesOfTheAccount() { servePages({"p"}, {{"p", "operational"}}); }

    /// Runs one cycle over these records; returns the identifiers of the notices that it raised, sorted.
    std::vector<std::string> cycle(
        const std::vector<std::string>& incidents, const std::vector<std::string>& maintenances = {})
    {
        notifications.added.clear();
        serveIncidents(incidents);
        serveMaintenances(maintenances);
        refresh();
        std::vector<std::string> identifiers;
        for (const auto& request : notifications.added) identifiers.push_back(request.identifier);
        std::ranges::sort(identifiers);
        return identifiers;
    }

    static std::string active(const std::string& id) { return incident(id, "Title of " + id); }
    static std::string acknowledged(const std::string& id)
    {
        return incident(id, "Title", R"(, "acknowledged_at": "2026-11-20T09:31:00Z")");
    }
    static std::string resolved(const std::string& id)
    {
        return incident(id, "Title", R"(, "incident_state_id": "4")");
    }
    static std::string withStatus(const std::string& id, const std::string& status)
    {
        return maintenance(id, "Title", R"(, "status": ")" + status + "\"");
    }
};

using Identifiers = std::vector<std::string>;

TEST_F(ChangesOfTheAccount, WhatExistsAtTheFirstSuccessIsNoNews)
{
    EXPECT_EQ(cycle({active("1")}, {withStatus("m", "scheduled")}), Identifiers{});
    EXPECT_EQ(cycle({active("1")}, {withStatus("m", "scheduled")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, AnEmptyFirstResultSeedsEmptySetsAndAnActiveIncidentOfTheSecondCycleRaisesOne)
{
    cycle({});
    EXPECT_EQ(cycle({active("1")}), Identifiers{"incident-1"});
}

TEST_F(ChangesOfTheAccount, TheSameIdTwiceInOneResponseRaisesOneForTheFirstOfThem)
{
    cycle({});
    EXPECT_EQ(cycle({incident("1", "first"), incident("1", "second")}), Identifiers{"incident-1"});
    EXPECT_EQ(notifications.added.at(0).subtitle, "first");
}

TEST_F(ChangesOfTheAccount, OfTheSameIdTwiceOnlyTheFirstIsLookedAt)
{
    cycle({});
    EXPECT_EQ(cycle({resolved("1"), active("1")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, ANewIncidentThatIsNotActivePostsNothingButIsKnownFromThenOn)
{
    cycle({});
    EXPECT_EQ(cycle({resolved("1"), acknowledged("2")}), Identifiers{});
    EXPECT_EQ(cycle({active("1"), active("2")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, AnIncidentThatDisappearsAndComesBackRaisesNothing)
{
    cycle({});
    EXPECT_EQ(cycle({active("1")}), Identifiers{"incident-1"});
    cycle({});
    EXPECT_EQ(cycle({active("1")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, AMaintenanceThatDisappearsAndComesBackRaisesNothing)
{
    cycle({});
    EXPECT_EQ(cycle({}, {withStatus("1", "scheduled")}), Identifiers{"maintenance-1"});
    cycle({});
    EXPECT_EQ(cycle({}, {withStatus("1", "scheduled")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, ACycleThatFailsAfterThePagesLeavesWhatIsKnownAlone)
{
    cycle({active("1")});
    serveIncidents({active("1"), active("2")});
    transport.script(maintenancesURL, 503, "");
    refresh();
    ASSERT_TRUE(*state->refreshError);
    EXPECT_EQ(notifications.added.size(), 0u);
    EXPECT_EQ(cycle({active("1"), active("2")}), Identifiers{"incident-2"});
}

TEST_F(ChangesOfTheAccount, AMaintenanceWithOneOfTheTwoStatusesInAnyCaseOfLettersPosts)
{
    cycle({});
    const auto raised = cycle({},
        {withStatus("1", "scheduled"), withStatus("2", "SCHEDULED"), withStatus("3", "In_Progress"),
            withStatus("4", "in_progress")});
    EXPECT_EQ(raised, (Identifiers{"maintenance-1", "maintenance-2", "maintenance-3", "maintenance-4"}));
}

TEST_F(ChangesOfTheAccount, AMaintenanceWithAnyOtherStatusPostsNothingButIsKnownFromThenOn)
{
    cycle({});
    EXPECT_EQ(
        cycle({}, {withStatus("1", "completed"), withStatus("2", "cancelled"), withStatus("3", "")}), Identifiers{});
    EXPECT_EQ(cycle({}, {withStatus("1", "scheduled"), withStatus("2", "scheduled"), withStatus("3", "scheduled")}),
        Identifiers{});
}

TEST_F(ChangesOfTheAccount, ASecondCycleWithUnchangedDataPostsNothing)
{
    cycle({});
    cycle({active("1")}, {withStatus("m", "scheduled")});
    EXPECT_EQ(cycle({active("1")}, {withStatus("m", "scheduled")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, TheSameIdOfAnIncidentAndAMaintenanceAreTwo)
{
    cycle({});
    EXPECT_EQ(cycle({active("1")}, {withStatus("1", "scheduled")}), (Identifiers{"incident-1", "maintenance-1"}));
}

TEST_F(ChangesOfTheAccount, AfterClearAccountDataAndANewKeyTheFirstSuccessSeedsAnewAndPostsNothing)
{
    cycle({});
    state->clearAccountData();
    EXPECT_EQ(cycle({active("1")}, {withStatus("m", "scheduled")}), Identifiers{});
    EXPECT_EQ(cycle({active("1"), active("2")}, {withStatus("m", "scheduled")}), Identifiers{"incident-2"});
}

TEST_F(ChangesOfTheAccount, SeedingDropsWhatWasKnownBefore)
{
    cycle({active("1")});
    state->clearAccountData();
    cycle({active("2")});
    EXPECT_EQ(cycle({active("1"), active("2")}), Identifiers{"incident-1"});
}

TEST_F(ChangesOfTheAccount, AFailedCycleSeedsNothingAndSeedingHappensWithTheFirstSuccessHoweverLate)
{
    transport.script(pagesURL, 503, "");
    EXPECT_EQ(cycle({}), Identifiers{});
    servePages({"p"}, {});
    EXPECT_EQ(cycle({active("1")}), Identifiers{});
}

TEST_F(ChangesOfTheAccount, WhatAppearedDuringAnOutageOfTheNetworkIsToldInTheNextSuccessfulCycle)
{
    cycle({});
    transport.script(pagesURL, platform::URLError::Code::notConnectedToInternet);
    EXPECT_EQ(cycle({active("1")}), Identifiers{});
    servePages({"p"}, {});
    EXPECT_EQ(cycle({active("1")}), Identifiers{"incident-1"});
}

TEST_F(ChangesOfTheAccount, AnIncidentIsToldInTheseWords)
{
    cycle({});
    cycle({incident("7", "Login errors", R"(, "message": "We look into it.")")});
    EXPECT_EQ(notifications.added,
        (std::vector<NotificationRequest>{{.identifier = "incident-7",
            .title = "New Incident",
            .subtitle = "Login errors",
            .body = "We look into it.",
            .type = "incident",
            .id = "7"}}));
}

TEST_F(ChangesOfTheAccount, AMaintenanceIsToldInTheseWordsAlsoWhenItRunsAlready)
{
    cycle({});
    cycle({}, {maintenance("9", "Move", R"(, "status": "in_progress", "message": "To a new rack.")")});
    EXPECT_EQ(notifications.added,
        (std::vector<NotificationRequest>{{.identifier = "maintenance-9",
            .title = "Scheduled Maintenance",
            .subtitle = "Move",
            .body = "To a new rack.",
            .type = "maintenance",
            .id = "9"}}));
}

TEST_F(ChangesOfTheAccount, AnAbsentMessageTakesTheDefaultTextAndAnEmptyOneIsUsedAsItIs)
{
    cycle({});
    cycle({incident("1", "T"), incident("2", "T", R"(, "message": "")")},
        {withStatus("3", "scheduled"), maintenance("4", "T", R"(, "message": "", "status": "scheduled")")});
    std::vector<std::string> bodies;
    for (const auto& request : notifications.added) bodies.push_back(request.body);
    EXPECT_EQ(bodies,
        (std::vector<std::string>{
            "An incident has been reported.", "", "A maintenance window has been scheduled.", ""}));
}

TEST_F(ChangesOfTheAccount, IncidentsAreToldBeforeMaintenancesAndOnceTheListsArePublished)
{
    cycle({});
    serveIncidents({active("1")});
    serveMaintenances({withStatus("m", "scheduled")});
    std::vector<std::string> order;
    const auto subscription = state->objectWillChange(
        [&] { order.push_back(std::to_string(notifications.added.size()) + " told, " + snapshot()); });
    refresh();
    EXPECT_EQ(
        order.at(order.size() - 4), "2 told, pages 1 incidents 1 maintenances 1, operational, idle, refreshed, seeded");
    EXPECT_EQ(notifications.added.at(0).type, "incident");
}

}  // namespace

}  // namespace larkspan::core
