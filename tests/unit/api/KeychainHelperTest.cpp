#include "api/KeychainHelper.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "fakes/FakeCredentialStore.h"

namespace larkspan::api {

namespace {

const fakes::FakeCredentialStore::Attributes attributes{"KestruneAPIKeyService", "KestruneAPIKey"};

TEST(KeychainHelper, KeepsTheKeyUnderItsTwoAttributes)
{
    fakes::FakeCredentialStore store;
    EXPECT_TRUE(KeychainHelper::saveAPIKey(store, "k-1"));
    ASSERT_EQ(store.items.size(), 1u);
    EXPECT_EQ(store.items.begin()->first, attributes);
    EXPECT_EQ(KeychainHelper::readAPIKey(store), "k-1");
}

TEST(KeychainHelper, ReadingWithNoStoredItemYieldsAbsent)
{
    fakes::FakeCredentialStore store;
    EXPECT_EQ(KeychainHelper::readAPIKey(store), std::nullopt);
}

TEST(KeychainHelper, AnItemWhoseDataIsNotValidUtf8ReadsAsAbsent)
{
    fakes::FakeCredentialStore store;
    store.items.emplace(attributes, "k\xFF");
    EXPECT_EQ(KeychainHelper::readAPIKey(store), std::nullopt);
}

TEST(KeychainHelper, EveryReadGoesToTheStore)
{
    fakes::FakeCredentialStore store;
    KeychainHelper::readAPIKey(store);
    KeychainHelper::readAPIKey(store);
    EXPECT_EQ(store.reads, 2);
}

TEST(KeychainHelper, SavingTwiceLeavesExactlyOneItemWithTheSecondValue)
{
    fakes::FakeCredentialStore store;
    KeychainHelper::saveAPIKey(store, "first");
    EXPECT_TRUE(KeychainHelper::saveAPIKey(store, "second"));
    ASSERT_EQ(store.items.size(), 1u);
    EXPECT_EQ(KeychainHelper::readAPIKey(store), "second");
}

TEST(KeychainHelper, AFailedAddAfterASuccessfulDeleteLeavesNoKey)
{
    fakes::FakeCredentialStore store;
    KeychainHelper::saveAPIKey(store, "first");
    store.refusesToAdd = true;
    EXPECT_FALSE(KeychainHelper::saveAPIKey(store, "second"));
    EXPECT_TRUE(store.items.empty());
}

TEST(KeychainHelper, AKeyThatIsNoTextLeavesTheStoreUntouched)
{
    fakes::FakeCredentialStore store;
    KeychainHelper::saveAPIKey(store, "first");
    EXPECT_FALSE(KeychainHelper::saveAPIKey(store, "\xC3\x28"));
    EXPECT_EQ(KeychainHelper::readAPIKey(store), "first");
}

TEST(KeychainHelper, DeletingWhenNothingIsStoredDoesNothing)
{
    fakes::FakeCredentialStore store;
    KeychainHelper::deleteAPIKey(store);
    EXPECT_TRUE(store.items.empty());
}

TEST(KeychainHelper, AnEmptyStringCanBeStoredAndReadsBackAsAnEmptyString)
{
    fakes::FakeCredentialStore store;
    EXPECT_TRUE(KeychainHelper::saveAPIKey(store, ""));
    EXPECT_EQ(KeychainHelper::readAPIKey(store), "");
}

}  // namespace

}  // namespace larkspan::api
