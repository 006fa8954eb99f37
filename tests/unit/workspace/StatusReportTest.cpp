#include "workspace/StatusReports.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include "api/KeychainHelper.h"
#include "fakes/PolledAccount.h"
#include "support/Task.h"

namespace larkspan::workspace {

namespace {

using platform::StatusReport;

class Reports : public testing::Test, public fakes::PolledAccount {
protected:
    /// What the running program says after a cycle.
    StatusReport ofTheProgram()
    {
        refresh();
        const auto report = statusReport(*state);
        EXPECT_TRUE(report);
        return report.value_or(StatusReport{});
    }

    /// What a process that fetches for itself says.
    StatusReport ofItsOwnCycle()
    {
        const auto report = std::make_shared<StatusReport>();
        support::start(main, fetching(report));
        run();
        return *report;
    }

    support::Task<void> fetching(std::shared_ptr<StatusReport> report)
    {
        auto fetched = fetchedStatusReport({api, main, clock});
        *report = co_await std::move(fetched);
    }

    void expectBothEndWith(int exitCode)
    {
        EXPECT_EQ(ofItsOwnCycle().exitCode, exitCode);
        EXPECT_EQ(ofTheProgram().exitCode, exitCode);
    }
};

TEST_F(Reports, AnOperationalAccountEndsWith0AndSaysNothingElseThanTheDashboard)
{
    servePages({"a", "b"}, {{"a", "operational"}, {"b", "operational"}});
    const auto report = ofTheProgram();
    EXPECT_EQ(report.exitCode, 0);
    EXPECT_EQ(report.text, "All systems operational\n2 Status Pages · No active incidents\n");
    EXPECT_EQ(report.problem, "");
}

TEST_F(Reports, ADegradedAccountEndsWith1)
{
    servePages({"a"}, {{"a", "degraded"}});
    expectBothEndWith(1);
}

TEST_F(Reports, AMaintenanceEndsWith1)
{
    servePages({"a"}, {{"a", "maintenance"}});
    expectBothEndWith(1);
}

TEST_F(Reports, AnOutageEndsWith2)
{
    servePages({"a"}, {{"a", "major-outage"}});
    expectBothEndWith(2);
}

TEST_F(Reports, AnAccountOfPagesWithoutAStatusEndsWith3AndSaysSo)
{
    servePages({"a"}, {{"a", "?"}});
    expectBothEndWith(3);
    EXPECT_EQ(ofItsOwnCycle().problem, "Status is unknown");
}

TEST_F(Reports, AnAccountWithoutPagesEndsWith3AndSaysSo)
{
    servePages({}, {});
    const auto report = ofItsOwnCycle();
    EXPECT_EQ(report.exitCode, 3);
    EXPECT_EQ(report.problem, "No Status Pages");
}

TEST_F(Reports, TheProgramAndAProcessOfItsOwnSayTheSameOfOneAccount)
{
    servePages({"a", "b"}, {{"a", "degraded"}, {"b", "operational"}});
    serveIncidents({incident("i", "Slow", R"(, "incident_state_id": "2")")});
    serveMaintenances({maintenance("m", "Upgrade", R"(, "status": "in_progress")")});
    EXPECT_EQ(ofItsOwnCycle(), ofTheProgram());
}

TEST_F(Reports, TheJSONHasTheCountsAndThePagesInOneLine)
{
    servePages({"a", "b"}, {{"a", "major-outage"}, {"b", "operational"}});
    serveIncidents({incident("i", "Slow"), incident("j", "Old", R"(, "incident_state_id": "4")")});
    serveMaintenances({maintenance("m", "Upgrade", R"(, "status": "in_progress")"),
        maintenance("n", "Next", R"(, "status": "scheduled")")});
    clock.time = std::chrono::sys_days{std::chrono::year(2026) / 11 / 22} + std::chrono::hours(9);
    EXPECT_EQ(ofTheProgram().json,
        R"({"status":"down","headline":"1 Status Page requires attention",)"
        R"("details":"2 Status Pages · 1 active incident · 1 maintenance in progress",)"
        R"("updated":"2026-11-22T09:00:00Z","status_pages":2,"affected_pages":1,"active_incidents":1,)"
        R"("active_maintenances":1,"scheduled_maintenances":1,)"
        R"("pages":[{"id":"a","name":"a","status":"down"},{"id":"b","name":"b","status":"operational"}],)"
        R"("stale":false})"
        "\n");
}

TEST_F(Reports, BeforeTheFirstCycleHasEndedTheProgramKnowsNothing)
{
    EXPECT_FALSE(statusReport(*state));
    state->refreshNow();
    EXPECT_FALSE(statusReport(*state));
}

TEST_F(Reports, AfterAFailedRefreshTheProgramEndsWith3AndSaysWhyBesideWhatItHolds)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    transport.script(pagesURL, 500, "");
    const auto report = ofTheProgram();
    EXPECT_EQ(report.exitCode, 3);
    EXPECT_EQ(report.text, "Status may be stale\n1 Status Page\n");
    EXPECT_EQ(report.problem, error());
    EXPECT_NE(report.problem, "");
}

TEST_F(Reports, AnOutageThatWasSeenEndsWith2ThoughTheRefreshFailedSince)
{
    servePages({"a"}, {{"a", "major-outage"}});
    refresh();
    transport.script(pagesURL, 500, "");
    const auto report = ofTheProgram();
    EXPECT_EQ(report.exitCode, 2);
    EXPECT_EQ(report.problem, error());
}

TEST_F(Reports, WithoutTheNetworkTheProgramEndsWith3AndSaysSo)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    state->isReachable = false;
    const auto report = statusReport(*state);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->exitCode, 3);
    EXPECT_EQ(report->problem, "Network offline");
}

TEST_F(Reports, AFetchThatFailsTellsNoCounts)
{
    transport.script(pagesURL, 500, "");
    const auto report = ofItsOwnCycle();
    EXPECT_EQ(report.exitCode, 3);
    EXPECT_EQ(report.text, "Status may be stale\n");
    EXPECT_EQ(report.json,
        R"({"status":"stale","headline":"Status may be stale","stale":true,"problem":")" + report.problem + "\"}\n");
    EXPECT_NE(report.problem, "");
}

TEST_F(Reports, WithoutAKeyTheFetchSaysThatALockedKeyringStaysSo)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    EXPECT_EQ(ofItsOwnCycle().problem, "API key is missing. A locked keyring is not unlocked for this.");
    EXPECT_EQ(ofTheProgram().problem, "API key is missing.");
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Reports, NamesOfPagesAreWrittenAsJSONWritesThem)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "Say \"hi\"\n\u001b[31m"}])");
    transport.script(overviewURL, 200, overview({}));
    EXPECT_NE(ofItsOwnCycle().json.find(R"("name":"Say \"hi\"\n\u001b[31m")"), std::string::npos);
}

}  // namespace

}  // namespace larkspan::workspace
