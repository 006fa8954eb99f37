#include <QProcessEnvironment>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <thread>
#include <tuple>

#include "ApiKeyItem.h"
#include "SessionBus.h"
#include "adapters/secrets/SecretServiceStore.h"
#include "peers/EventLoop.h"
#include "peers/Keyring.h"
#include "peers/Peer.h"

namespace larkspan::adapters {
namespace {

using peers::Keyring;
using namespace std::chrono_literals;

constexpr auto patience = 400ms;

class ServiceThatNeverAnswers : public testing::TestWithParam<const char*> {};

TEST_P(ServiceThatNeverAnswers, EndsAReadAtTheDeadline)
{
    peers::Peer service("/usr/bin/python3", {LARKSPAN_SECRET_PEERS "/silent_service.py", GetParam()},
        QProcessEnvironment::systemEnvironment());
    ASSERT_EQ(service.hear(), "ready");
    SecretServiceStore store(patience);

    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    const auto duration = std::chrono::steady_clock::now() - begin;

    EXPECT_TRUE(service.heardByNow().contains(GetParam())) << "the call that this is about was not made";
    EXPECT_GE(duration, patience);
    EXPECT_LT(duration, patience + 1s);
}

INSTANTIATE_TEST_SUITE_P(
    EachCall, ServiceThatNeverAnswers, testing::Values("OpenSession", "SearchItems", "Unlock", "Prompt"));

TEST(FrozenService, EndsEveryOperationAtTheDeadlineAndIsUsableWhenItThaws)
{
    Keyring keyring(sessionBus());
    SecretServiceStore store(patience);
    ASSERT_TRUE(store.add(apiKey, "key-1"));
    keyring.signal(SIGSTOP);

    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_FALSE(store.add(apiKey, "key-2"));
    store.remove(apiKey);
    const auto duration = std::chrono::steady_clock::now() - begin;
    keyring.signal(SIGCONT);

    EXPECT_GE(duration, 3 * patience);
    EXPECT_LT(duration, 3 * patience + 2s);
    EXPECT_EQ(store.find(apiKey), "key-1");
}

TEST(FrozenService, HoldsUpTheOpeningOfTheSessionForASecondAtMost)
{
    Keyring keyring(sessionBus());
    SecretServiceStore store;
    keyring.store(apiKeyAttributes, "key-1");
    keyring.signal(SIGSTOP);

    const auto begin = std::chrono::steady_clock::now();
    store.open();
    const auto duration = std::chrono::steady_clock::now() - begin;
    keyring.signal(SIGCONT);

    EXPECT_LT(duration, 3s);
    EXPECT_EQ(store.find(apiKey), "key-1");
}

TEST(ServiceKilledInACall, CountsAsEmptyAtOnce)
{
    Keyring keyring(sessionBus());
    SecretServiceStore store(10s);
    ASSERT_TRUE(store.add(apiKey, "key-1"));
    keyring.signal(SIGSTOP);
    QTimer::singleShot(300ms, [&] { keyring.signal(SIGKILL); });
    std::thread reader([&] { EXPECT_EQ(store.find(apiKey), std::nullopt); });

    const auto begin = std::chrono::steady_clock::now();
    peers::turnFor(400ms);
    reader.join();

    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
}

TEST(EndOfTheSessionBus, DoesNotEndTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto outliveTheBus = [] {
        SecretServiceStore store(patience);
        std::ignore = store.find(apiKey);
        sessionBus().stop();
        peers::turnFor(500ms);
        std::_Exit(store.find(apiKey) ? 1 : 0);
    };
    EXPECT_EXIT(outliveTheBus(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace larkspan::adapters
