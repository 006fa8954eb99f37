#include <gtest/gtest.h>

#include "ApiKeyItem.h"
#include "SessionBus.h"
#include "adapters/secrets/SecretServiceStore.h"
#include "peers/EventLoop.h"
#include "peers/Keyring.h"
#include "peers/Peer.h"
#include "peers/QtPrinting.h"

namespace larkspan::adapters {
namespace {

/// Records all calls to the keyring, from any client.
class KeyringCalls : public testing::Test {
protected:
    KeyringCalls()
    {
        keyring_.store(apiKeyAttributes, "key-1");
        // The bus monitor is ready once it has reported a call.
        peers::turnUntil([this] {
            store_.find(apiKey);
            return !callsByNow().isEmpty();
        });
        callsByNow();
    }

    QStringList callsByNow()
    {
        QStringList names;
        for (const auto& line : monitor_.heardByNow()) {
            if (line.startsWith("mc\t")) names << line.section('\t', -1);
        }
        return names;
    }

    QStringList callsUntilRead()
    {
        QStringList names;
        peers::turnUntil([&] { return (names += callsByNow()).contains("GetSecret"); });
        return names;
    }

    peers::Keyring keyring_{sessionBus()};
    SecretServiceStore store_;

private:
    peers::Peer monitor_{"dbus-monitor",
        {"--address", sessionBus().address(), "--profile", "type='method_call',member='SearchItems'",
            "type='method_call',member='GetSecret'"},
        QProcessEnvironment::systemEnvironment()};
};

TEST_F(KeyringCalls, AreOneForEachReadWhileTheKeyringSaysThatNothingChanged)
{
    EXPECT_EQ(store_.find(apiKey), "key-1");

    EXPECT_EQ(callsUntilRead(), QStringList{"GetSecret"});
}

TEST_F(KeyringCalls, BeginWithASearchOnceAnythingHasChanged)
{
    keyring_.store({"service", "another", "account", "another"}, "theirs");
    callsByNow();

    EXPECT_EQ(store_.find(apiKey), "key-1");

    EXPECT_EQ(callsUntilRead().first(2), (QStringList{"SearchItems", "GetSecret"}));
}

TEST_F(KeyringCalls, FindTheSecretThatTheItemHasByNow)
{
    keyring_.store(apiKeyAttributes, "key-2");
    EXPECT_EQ(store_.find(apiKey), "key-2");

    keyring_.clear(apiKeyAttributes);
    EXPECT_EQ(store_.find(apiKey), std::nullopt);
}

TEST(KeyringThatWasOpenedBeforehand, IsAskedForNoFurtherSessionByTheFirstRead)
{
    peers::Keyring keyring(sessionBus());
    keyring.store(apiKeyAttributes, "key-1");
    SecretServiceStore store;
    store.open();
    peers::Peer monitor("dbus-monitor",
        {"--address", sessionBus().address(), "--profile", "type='method_call',member='OpenSession'"},
        QProcessEnvironment::systemEnvironment());

    // The bus monitor is ready once it has reported another store's session.
    EXPECT_TRUE(peers::turnUntil([&] {
        SecretServiceStore().open();
        return !monitor.heardByNow().filter("OpenSession").empty();
    }));
    monitor.heardByNow();
    EXPECT_EQ(store.find(apiKey), "key-1");
    EXPECT_EQ(monitor.heardByNow().filter("OpenSession"), QStringList());
}

TEST_F(KeyringCalls, FindNothingForAnotherItem)
{
    EXPECT_EQ(store_.find({.service = "KestruneAPIKeyService", .account = "another"}), std::nullopt);
}

}  // namespace
}  // namespace larkspan::adapters
