#include "adapters/secrets/SecretServiceStore.h"

#include <gtest/gtest.h>

#include <csignal>

#include "ApiKeyItem.h"
#include "SessionBus.h"
#include "peers/EventLoop.h"
#include "peers/Keyring.h"

namespace larkspan::adapters {
namespace {

using peers::Keyring;
using namespace std::chrono_literals;
using namespace std::string_literals;

class SecretServiceStoreTest : public testing::Test {
protected:
    Keyring keyring{sessionBus()};
    SecretServiceStore store;
};

TEST_F(SecretServiceStoreTest, SecretToolReadsWhatIsAdded)
{
    EXPECT_TRUE(store.add(apiKey, "key-1"));

    EXPECT_EQ(keyring.lookUp(apiKeyAttributes), "key-1");
}

TEST_F(SecretServiceStoreTest, AddsExactlyTheTwoAttributes)
{
    ASSERT_TRUE(store.add(apiKey, "key-1"));

    auto attributes = keyring.attributes("KestruneAPIKeyService");
    // The daemon adds this to an item without a schema when it reads its file again.
    if (attributes.value("xdg:schema") == "org.freedesktop.Secret.Generic") attributes.remove("xdg:schema");
    EXPECT_EQ(attributes, (QVariantMap{{"service", "KestruneAPIKeyService"}, {"account", "KestruneAPIKey"}}));
}

TEST_F(SecretServiceStoreTest, FindsWhatSecretToolStored)
{
    keyring.store(apiKeyAttributes, "key-of-a-shell");

    EXPECT_EQ(store.find(apiKey), "key-of-a-shell");
}

TEST_F(SecretServiceStoreTest, FindsNothingWhereNothingIs)
{
    keyring.store({"service", "KestruneAPIKeyService", "account", "another"}, "not this one");

    EXPECT_EQ(store.find(apiKey), std::nullopt);
}

TEST_F(SecretServiceStoreTest, AddingTwiceLeavesOneItemWithTheSecondValue)
{
    ASSERT_TRUE(store.add(apiKey, "key-1"));
    ASSERT_TRUE(store.add(apiKey, "key-2"));

    EXPECT_EQ(store.find(apiKey), "key-2");
    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 1);
}

TEST_F(SecretServiceStoreTest, OfSeveralMatchingItemsTheOneChangedLastCounts)
{
    const auto changedWithinASecondOfItsOwn = 1100ms;
    keyring.store(apiKeyAttributes + QStringList{"made-by", "a"}, "key-a");
    peers::turnFor(changedWithinASecondOfItsOwn);
    keyring.store(apiKeyAttributes + QStringList{"made-by", "b"}, "key-b");
    EXPECT_EQ(store.find(apiKey), "key-b");

    peers::turnFor(changedWithinASecondOfItsOwn);
    keyring.store(apiKeyAttributes + QStringList{"made-by", "a"}, "key-a-changed");
    EXPECT_EQ(store.find(apiKey), "key-a-changed");
}

TEST_F(SecretServiceStoreTest, RemovingAndAddingLeavesExactlyOneOfSeveralMatchingItems)
{
    keyring.store(apiKeyAttributes + QStringList{"made-by", "a"}, "key-a");
    keyring.store(apiKeyAttributes + QStringList{"made-by", "b"}, "key-b");

    store.remove(apiKey);
    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 0);
    EXPECT_TRUE(store.add(apiKey, "key-c"));

    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 1);
    EXPECT_EQ(store.find(apiKey), "key-c");
}

TEST_F(SecretServiceStoreTest, RemovingLeavesOtherItemsAlone)
{
    keyring.store({"service", "KestruneAPIKeyService", "account", "another"}, "theirs");
    ASSERT_TRUE(store.add(apiKey, "ours"));

    store.remove(apiKey);

    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(keyring.lookUp({"service", "KestruneAPIKeyService", "account", "another"}), "theirs");
}

TEST_F(SecretServiceStoreTest, RemovingWhatIsNotThereDoesNothing)
{
    store.remove(apiKey);

    EXPECT_EQ(store.find(apiKey), std::nullopt);
}

TEST_F(SecretServiceStoreTest, AnEmptySecretIsKeptAsOne)
{
    EXPECT_TRUE(store.add(apiKey, ""));

    EXPECT_EQ(store.find(apiKey), "");
}

TEST_F(SecretServiceStoreTest, BytesThatAreNoTextComeBackAsTheyAre)
{
    const auto bytes = "\xff\xfe\0after\n"s;

    EXPECT_TRUE(store.add(apiKey, bytes));

    EXPECT_EQ(store.find(apiKey), bytes);
}

TEST_F(SecretServiceStoreTest, FindsTheSecretAgainAfterTheServiceWasRestarted)
{
    ASSERT_TRUE(store.add(apiKey, "key-1"));
    ASSERT_EQ(store.find(apiKey), "key-1");

    keyring.end();
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    keyring.start();

    EXPECT_EQ(store.find(apiKey), "key-1");
}

TEST_F(SecretServiceStoreTest, AfterAStopEveryOperationEndsAtOnce)
{
    ASSERT_TRUE(store.add(apiKey, "key-1"));
    keyring.signal(SIGSTOP);

    store.stop();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_FALSE(store.add(apiKey, "key-2"));
    store.remove(apiKey);

    EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
    keyring.signal(SIGCONT);
}

TEST(WithoutASecretService, NothingIsFoundAndNothingIsKept)
{
    SecretServiceStore store;
    const auto begin = std::chrono::steady_clock::now();

    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_FALSE(store.add(apiKey, "key"));
    store.remove(apiKey);

    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
}

}  // namespace
}  // namespace larkspan::adapters
