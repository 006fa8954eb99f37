#include <gtest/gtest.h>

#include <csignal>
#include <future>

#include "ApiKeyItem.h"
#include "Prompter.h"
#include "SessionBus.h"
#include "adapters/secrets/SecretServiceStore.h"
#include "peers/EventLoop.h"
#include "peers/Keyring.h"

namespace larkspan::adapters {
namespace {

using peers::Keyring;
using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

class LockedKeyring : public testing::Test {
protected:
    LockedKeyring()
    {
        keyring.store(apiKeyAttributes, "key-1");
        keyring.lock();
    }

    /// Looks for the key as the client does, on another thread, while this one goes on.
    std::future<std::optional<std::string>> findElsewhere()
    {
        return std::async(std::launch::async, [this] { return store.find(apiKey); });
    }

    template <typename Result>
    static bool comes(const std::future<Result>& answer)
    {
        return turnUntil([&] { return answer.wait_for(0s) == std::future_status::ready; });
    }

    Keyring keyring{sessionBus()};
    SecretServiceStore store{1s};
};

TEST_F(LockedKeyring, RaisesTheDesktopsPromptOnceAndGivesTheSecretWhenItIsAnswered)
{
    Prompter prompter(Prompter::answeringRightly());

    EXPECT_EQ(store.find(apiKey), "key-1");
    EXPECT_EQ(store.find(apiKey), "key-1");

    EXPECT_EQ(prompter.promptsByNow(), 1);
}

TEST_F(LockedKeyring, CountsAsEmptyWithoutAPromptForAProcessThatMayShowNone)
{
    Prompter prompter(Prompter::answeringRightly());
    SecretServiceStore withoutPrompts(1s, SecretServiceStore::Prompts::never);

    EXPECT_EQ(withoutPrompts.find(apiKey), std::nullopt);
    withoutPrompts.allowPromptAgain();
    EXPECT_EQ(withoutPrompts.find(apiKey), std::nullopt);

    EXPECT_EQ(prompter.promptsByNow(), 0);
}

TEST_F(LockedKeyring, CountsAsEmptyWhenThePromptIsDismissedAndRaisesNoFurtherOne)
{
    Prompter prompter(Prompter::dismissing());

    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(store.find(apiKey), std::nullopt);

    EXPECT_EQ(prompter.promptsByNow(), 1);
}

TEST_F(LockedKeyring, PromptsAgainWhenTheUserActs)
{
    Prompter prompter(Prompter::dismissing());
    ASSERT_EQ(store.find(apiKey), std::nullopt);
    ASSERT_EQ(prompter.promptsByNow(), 1);

    store.allowPromptAgain();
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(store.find(apiKey), std::nullopt);

    EXPECT_EQ(prompter.promptsByNow(), 1);
}

TEST_F(LockedKeyring, JustWorksWhenItIsUnlockedElsewhereAfterADismissedPrompt)
{
    Prompter prompter(Prompter::dismissing());
    ASSERT_EQ(store.find(apiKey), std::nullopt);

    keyring.unlock();

    EXPECT_EQ(store.find(apiKey), "key-1");
    EXPECT_EQ(prompter.promptsByNow(), 1);
}

TEST_F(LockedKeyring, PromptsAgainWhenItWasUnlockedInBetween)
{
    Prompter prompter(Prompter::dismissing());
    ASSERT_EQ(store.find(apiKey), std::nullopt);
    keyring.unlock();
    ASSERT_EQ(store.find(apiKey), "key-1");

    keyring.lock();
    EXPECT_EQ(store.find(apiKey), std::nullopt);

    EXPECT_EQ(prompter.promptsByNow(), 2);
}

TEST_F(LockedKeyring, APromptMayStandLongerThanAnyDeadline)
{
    Prompter prompter(Prompter::waiting());
    auto answer = findElsewhere();
    ASSERT_EQ(prompter.hear(), "prompt");

    turnFor(3s);
    prompter.tell(QByteArray("answer ") + Keyring::password + '\n');

    ASSERT_TRUE(comes(answer));
    EXPECT_EQ(answer.get(), "key-1");
}

TEST_F(LockedKeyring, WhatTheUserDoesWhileThePromptStandsRaisesNoOtherOneAfterIt)
{
    Prompter prompter(Prompter::waiting());
    auto answer = findElsewhere();
    ASSERT_EQ(prompter.hear(), "prompt");

    store.allowPromptAgain();
    prompter.tell("dismiss\n");
    ASSERT_TRUE(comes(answer));
    EXPECT_EQ(answer.get(), std::nullopt);

    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(prompter.promptsByNow(), 0);
}

TEST_F(LockedKeyring, AStopEndsTheWaitForThePrompt)
{
    Prompter prompter(Prompter::waiting());
    auto answer = findElsewhere();
    ASSERT_EQ(prompter.hear(), "prompt");

    store.stop();

    ASSERT_TRUE(comes(answer));
    EXPECT_EQ(answer.get(), std::nullopt);
}

TEST_F(LockedKeyring, TheEndOfTheServiceEndsTheWaitForThePrompt)
{
    Prompter prompter(Prompter::waiting());
    auto answer = findElsewhere();
    ASSERT_EQ(prompter.hear(), "prompt");

    keyring.signal(SIGKILL);

    ASSERT_TRUE(comes(answer));
    EXPECT_EQ(answer.get(), std::nullopt);
}

TEST_F(LockedKeyring, AServiceThatFreezesEndsTheWaitForThePrompt)
{
    Prompter prompter(Prompter::waiting());
    auto answer = findElsewhere();
    ASSERT_EQ(prompter.hear(), "prompt");

    keyring.signal(SIGSTOP);

    ASSERT_TRUE(comes(answer));
    EXPECT_EQ(answer.get(), std::nullopt);
    keyring.signal(SIGCONT);
}

TEST_F(LockedKeyring, WithoutADialogOfTheDesktopsCountsAsEmpty)
{
    EXPECT_EQ(store.find(apiKey), std::nullopt);
}

TEST_F(LockedKeyring, AddingAsksForThePasswordOnce)
{
    Prompter prompter(Prompter::answeringRightly());

    EXPECT_TRUE(store.add(apiKey, "key-2"));

    EXPECT_EQ(prompter.promptsByNow(), 1);
    EXPECT_EQ(keyring.lookUp(apiKeyAttributes), "key-2");
}

TEST_F(LockedKeyring, SavingOverADismissedPromptAsksOnceAndChangesNothing)
{
    Prompter prompter(Prompter::dismissing());

    store.remove(apiKey);
    EXPECT_FALSE(store.add(apiKey, "key-2"));

    EXPECT_EQ(prompter.promptsByNow(), 1);
    keyring.unlock();
    EXPECT_EQ(store.find(apiKey), "key-1");
}

TEST_F(LockedKeyring, RemovingAsksEvenIfAPollsPromptWasDismissed)
{
    {
        Prompter dismissing(Prompter::dismissing());
        ASSERT_EQ(store.find(apiKey), std::nullopt);
    }
    Prompter prompter(Prompter::answeringRightly());

    store.remove(apiKey);

    EXPECT_EQ(prompter.promptsByNow(), 1);
    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 0);
}

/// The key is in a locked keyring beside the default one, which is unlocked.
class LockedKeyringBesideTheDefaultOne : public testing::Test {
protected:
    LockedKeyringBesideTheDefaultOne() { keyring.storeInALockedKeyring(apiKeyAttributes, "key-1"); }

    Keyring keyring{sessionBus()};
    SecretServiceStore store{1s};
};

TEST_F(LockedKeyringBesideTheDefaultOne, GivesItsSecretWhenThePromptIsAnswered)
{
    Prompter prompter(Prompter::answeringRightly());

    EXPECT_EQ(store.find(apiKey), "key-1");

    EXPECT_EQ(prompter.promptsByNow(), 1);
}

TEST_F(LockedKeyringBesideTheDefaultOne, SavingOverADismissedPromptFailsAndLeavesNoSecondItem)
{
    Prompter prompter(Prompter::dismissing());

    store.remove(apiKey);
    EXPECT_FALSE(store.add(apiKey, "key-2"));

    EXPECT_EQ(prompter.promptsByNow(), 1);
    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 1);
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(prompter.promptsByNow(), 0);
}

TEST_F(LockedKeyringBesideTheDefaultOne, SavingOverAnAnsweredPromptLeavesTheNewItemAlone)
{
    Prompter prompter(Prompter::answeringRightly());

    store.remove(apiKey);
    EXPECT_TRUE(store.add(apiKey, "key-2"));

    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 1);
    EXPECT_EQ(store.find(apiKey), "key-2");
}

TEST_F(LockedKeyringBesideTheDefaultOne, DeletingOverADismissedPromptLeavesTheItemAndALaterLookRaisesNoPrompt)
{
    Prompter prompter(Prompter::dismissing());

    store.remove(apiKey);

    EXPECT_EQ(prompter.promptsByNow(), 1);
    EXPECT_EQ(keyring.count("KestruneAPIKeyService"), 1);
    EXPECT_EQ(store.find(apiKey), std::nullopt);
    EXPECT_EQ(prompter.promptsByNow(), 0);
}

TEST(WithoutAnyKeyring, AddingHasOneMade)
{
    const Keyring keyring(sessionBus(), Keyring::Start::withoutAnyKeyring);
    Prompter prompter(Prompter::answeringRightly());
    SecretServiceStore store;

    EXPECT_TRUE(store.add(apiKey, "key-1"));

    EXPECT_GE(prompter.promptsByNow(), 1);
    EXPECT_EQ(keyring.lookUp(apiKeyAttributes), "key-1");
}

}  // namespace
}  // namespace larkspan::adapters
