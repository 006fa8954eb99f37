#include "demo/DemoAccount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <set>

#include "demo/LivelyAccount.h"
#include "fakes/ManualClock.h"
#include "json/Json.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

constexpr platform::CredentialItem item{"service", "account"};

std::string fetchPages(DemoAccount& account)
{
    const auto key = account.credentialStore().find(item).value_or("");
    platform::HttpRequest request{"GET", "https://kestrune.example/user/api/v1/status-pages",
        {{"Authorization", "Bearer " + key}, {"X-API-Key", key}}, std::nullopt};
    std::promise<std::string> body;
    account.transport().send(std::move(request), {}, [&body](platform::HttpTransport::Result result) {
        body.set_value(std::get<platform::HttpResponse>(result).body);
    });
    return body.get_future().get();
}

TEST(DemoAccount, ShowsItsPagesToTheKeyInItsStoreAndLives)
{
    fakes::ManualClock clock;
    DemoAccount account(clock, item, 1ms);

    const auto before = parsedJson(fetchPages(account));
    clock.time += 1min;
    const auto after = parsedJson(fetchPages(account));

    EXPECT_EQ(before.at("data").size(), 4u);
    EXPECT_NE(before, after);
}

TEST(LivelyAccount, HasComponentsAndMonitorsOnEachOfItsPages)
{
    const auto account = livelyAccount("key", fakes::ManualClock().time);

    for (const auto& page : account.statusPages) {
        const auto isOfPage = [&page](const auto& record) { return record.statusPageId == page.id; };
        EXPECT_TRUE(std::ranges::any_of(account.components, isOfPage)) << page.id;
        EXPECT_TRUE(std::ranges::any_of(account.monitors, isOfPage)) << page.id;
    }
    EXPECT_FALSE(account.staff.teams.empty());
}

TEST(LivelyAccount, HasMonitorsOfEachTypeStateFormAndNumberOfSamples)
{
    const auto account = livelyAccount("key", fakes::ManualClock().time);
    std::set<std::string> types;
    std::set<std::string> states;
    std::set<MetricsForm> forms;
    std::set<int> counts;
    for (const auto& monitor : account.monitors) {
        types.insert(monitor.type.value_or("none"));
        states.insert(monitor.isPaused() ? "paused" : monitor.state.value_or("none"));
        forms.insert(monitor.metricsForm);
        counts.insert(monitor.samplesPerWindow);
    }

    EXPECT_EQ(types.size(), 8u);
    EXPECT_THAT(states, testing::IsSupersetOf({"up", "operational", "degraded", "down", "paused", "none"}));
    EXPECT_EQ(forms.size(), 7u);
    EXPECT_EQ(counts, (std::set{96, 288, 1'440}));
}

TEST(MemoryCredentialStore, HoldsEachItemByBothAttributes)
{
    MemoryCredentialStore store;

    EXPECT_TRUE(store.add(item, "one"));
    EXPECT_FALSE(store.add(item, "two"));
    EXPECT_TRUE(store.add({"service", "other"}, "three"));

    EXPECT_EQ(store.find(item), "one");
    store.remove(item);
    EXPECT_EQ(store.find(item), std::nullopt);
    EXPECT_EQ(store.find({"service", "other"}), "three");
}

}  // namespace
}  // namespace larkspan::simulator
