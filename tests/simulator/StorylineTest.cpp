#include "account/Storyline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "Samples.h"
#include "account/MaintenanceCalendar.h"
#include "demo/LivelyAccount.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

class Story : public testing::Test {
protected:
    void applyEventsUpTo(std::chrono::milliseconds elapsed)
    {
        story_.applyEventsUpTo(elapsed, start_ + elapsed, account_);
    }

    std::string statusOf(std::string_view id) { return *account_.findPage(id)->status; }

    const support::Time start_{std::chrono::sys_days(std::chrono::year(2026) / 5 / 1)};
    Account account_ = samples::account();
    Storyline story_{
        {{10s, "page-2", story::IncidentOpens{"major"}}, {15s, "page-2", story::IncidentIsAcknowledged{"major"}},
            {20s, "page-2", story::IncidentIsResolved{"major"}}, {22s, "page-3", story::MaintenanceIsPlanned{4s, 6s}}},
        30s};
};

TEST_F(Story, TellsNothingBeforeItsTime)
{
    applyEventsUpTo(9'999ms);

    EXPECT_TRUE(account_.incidents.empty());
    EXPECT_EQ(statusOf("page-2"), "operational");
}

TEST_F(Story, OpensAnIncidentAtItsTimeEvenIfNobodyLooksThen)
{
    applyEventsUpTo(14s);

    ASSERT_EQ(account_.incidents.size(), 1u);
    EXPECT_EQ(account_.incidents[0].createdAt, start_ + 10s);
    EXPECT_EQ(statusOf("page-2"), "down");
    EXPECT_EQ(statusOf("page-1"), "operational");
}

TEST_F(Story, TellsAllThatIsDueInOrder)
{
    applyEventsUpTo(21s);

    ASSERT_EQ(account_.incidents.size(), 1u);
    EXPECT_EQ(account_.incidents[0].acknowledgedAt, start_ + 15s);
    EXPECT_EQ(account_.incidents[0].endedAt, start_ + 20s);
    EXPECT_EQ(statusOf("page-2"), "operational");
}

TEST_F(Story, PlansAMaintenanceThatTheClockStartsAndEnds)
{
    applyEventsUpTo(25s);
    ASSERT_EQ(account_.maintenances.size(), 1u);
    EXPECT_EQ(account_.maintenances[0].startAt, start_ + 26s);
    EXPECT_EQ(account_.maintenances[0].endAt, start_ + 32s);

    updateMaintenancePhases(account_, start_ + 26s);
    EXPECT_EQ(statusOf("page-3"), "maintenance");

    updateMaintenancePhases(account_, start_ + 32s);
    EXPECT_EQ(statusOf("page-3"), "operational");
}

TEST_F(Story, StartsAgainWithOtherWordsWhenItsPeriodIsOver)
{
    applyEventsUpTo(39s);
    EXPECT_EQ(account_.incidents.size(), 1u);

    applyEventsUpTo(40s);
    ASSERT_EQ(account_.incidents.size(), 2u);
    EXPECT_NE(account_.incidents[0].title, account_.incidents[1].title);
}

TEST_F(Story, LeavesAloneWhatSomebodyElseHasResolved)
{
    applyEventsUpTo(10s);
    account_.incidents[0].endedAt = start_ + 12s;

    applyEventsUpTo(20s);

    EXPECT_FALSE(account_.incidents[0].acknowledgedAt);
    EXPECT_EQ(account_.incidents[0].endedAt, start_ + 12s);
}

TEST_F(Story, OfAPageThatIsGoneChangesNothing)
{
    account_.statusPages.erase(account_.statusPages.begin() + 1);

    applyEventsUpTo(21s);

    EXPECT_TRUE(account_.incidents.empty());
}

/// The demo's account as a client sees it that polls once a minute.
class OrdinaryDay : public testing::Test {
protected:
    std::string seenAt(std::chrono::milliseconds elapsed)
    {
        const auto now = start_ + elapsed;
        story_.applyEventsUpTo(elapsed, now, account_);
        updateMaintenancePhases(account_, now);
        std::string seen;
        for (const auto& page : account_.statusPages) seen += (seen.empty() ? "" : ", ") + *page.status;
        return seen;
    }

    std::ptrdiff_t active() const
    {
        return std::ranges::count_if(
            account_.incidents, [](const Incident& incident) { return incident.isOpen() && !incident.acknowledgedAt; });
    }

    const support::Time start_{std::chrono::sys_days(std::chrono::year(2026) / 5 / 1)};
    Account account_ = livelyAccount("key", start_);
    Storyline story_ = Storyline::ordinaryDay();
};

TEST_F(OrdinaryDay, BeginsInTheMiddleOfThings)
{
    EXPECT_EQ(seenAt(0s), "operational, down, maintenance, unknown");
    EXPECT_EQ(active(), 2);
    EXPECT_EQ(std::ranges::count_if(account_.maintenances, &Maintenance::isUnderWay), 1);
    EXPECT_EQ(account_.statusPages[0].name, "Acme Cloud");
}

TEST_F(OrdinaryDay, OpensItsFirstIncidentBeforeTheFirstMinuteIsOver)
{
    seenAt(0s);
    const auto before = active();

    seenAt(50s);

    EXPECT_EQ(active(), before + 1);
}

TEST_F(OrdinaryDay, LooksDifferentEachMinute)
{
    std::vector<std::string> seen;
    for (const auto at : {1min, 2min, 3min, 4min, 5min, 6min, 7min, 8min, 9min, 10min}) {
        const auto pages = seenAt(at);
        seen.push_back(pages + "; active " + std::to_string(active()));
    }

    EXPECT_THAT(seen,
        testing::ElementsAre("down, down, maintenance, unknown; active 3", "down, down, maintenance, unknown; active 1",
            "operational, degraded, maintenance, maintenance; active 0",
            "operational, operational, operational, maintenance; active 0",
            "operational, operational, operational, operational; active 0",
            "operational, operational, degraded, operational; active 1",
            "operational, operational, degraded, operational; active 0",
            "operational, operational, operational, operational; active 0",
            "operational, operational, operational, operational; active 0",
            "operational, down, maintenance, operational; active 2"));
}

TEST_F(OrdinaryDay, GoesOnAsItBegan)
{
    seenAt(10min);

    EXPECT_EQ(seenAt(13min), "operational, degraded, maintenance, maintenance");
    EXPECT_EQ(seenAt(15min), "operational, operational, operational, operational");
}

TEST_F(OrdinaryDay, HasSomethingNewToTellInEachRound)
{
    const auto before = account_.incidents.size();
    seenAt(20min);

    std::set<std::string> titles;
    const auto fresh = account_.incidents.size() - before;
    for (std::size_t index = 0; index < fresh; ++index) titles.insert(account_.incidents[index].title);
    EXPECT_EQ(fresh, 8u);
    EXPECT_GE(titles.size(), 6u);
}

}  // namespace
}  // namespace larkspan::simulator
