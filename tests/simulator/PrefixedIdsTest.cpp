#include "account/PrefixedIds.h"

#include <gtest/gtest.h>

#include <chrono>

#include "account/Seed.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

const support::Time now{std::chrono::sys_days(std::chrono::year(2026) / 11 / 20) + 9h};

TEST(PrefixedIds, StandWhereverOneRecordNamesAnother)
{
    auto account = seededAccount(3, now);
    prefixIds(account, "an_");
    for (const auto& page : account.statusPages) EXPECT_TRUE(page.id.starts_with("an_page-")) << page.id;
    for (const auto& incident : account.incidents) EXPECT_TRUE(account.findPage(incident.statusPageId.value_or("")));
    for (const auto& maintenance : account.maintenances)
        EXPECT_TRUE(account.findPage(maintenance.statusPageId.value_or("")));
    for (const auto& group : account.componentGroups) EXPECT_TRUE(account.findPage(group.statusPageId));
    for (const auto& component : account.components) {
        EXPECT_TRUE(account.findPage(component.statusPageId.value_or("")));
        EXPECT_TRUE(!component.groupId || account.findComponentGroup(*component.groupId));
    }
    for (const auto& monitor : account.monitors) {
        EXPECT_TRUE(account.findPage(monitor.statusPageId.value_or("")));
        EXPECT_TRUE(account.findComponent(monitor.componentId.value_or("")));
    }
}

TEST(PrefixedIds, StandBeforeEachOfThoseThatAreJoined)
{
    Account account;
    auto& maintenance = account.maintenances.emplace_back();
    maintenance.id = "1";
    maintenance.affectedComponents = "2,3,44";
    prefixIds(account, "an_");
    EXPECT_EQ(account.maintenances.front().id, "an_1");
    EXPECT_EQ(account.maintenances.front().affectedComponents, "an_2,an_3,an_44");
}

}  // namespace
}  // namespace larkspan::simulator
