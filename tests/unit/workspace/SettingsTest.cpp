#include "workspace/SettingsView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/KeychainHelper.h"
#include "fakes/PolledAccount.h"

namespace larkspan::workspace {

namespace {

using api::KeychainHelper;
using platform::HttpResponse;
using platform::URLError;
using Kind = SettingsView::ValidationState::Kind;

class SettingsSheet : public testing::Test, public fakes::PolledAccount {
protected:
    std::shared_ptr<SettingsView> opened()
    {
        auto settings = std::make_shared<SettingsView>(SettingsView::Ports{main, state, keys}, [this] { ++deletions; });
        settings->appear();
        run();
        return settings;
    }

    std::shared_ptr<SettingsView> openedWithoutKey()
    {
        KeychainHelper::deleteAPIKey(credentials);
        return opened();
    }

    /// The settings without a stored key, after `text` was entered and "Save & Verify" was pressed, as far as that
    /// runs.
    std::shared_ptr<SettingsView> enteredWithoutKey(std::string text)
    {
        auto settings = openedWithoutKey();
        settings->edit(std::move(text));
        settings->saveAndVerify();
        run();
        return settings;
    }

    api::APIKeyStore keys{client, credentials};
    int deletions = 0;
};

TEST_F(SettingsSheet, WithAStoredKeyShowsThatOneIsSavedWithNoMarkerAndNeverTheKey)
{
    const auto settings = opened();
    EXPECT_TRUE(*settings->hasExistingKey);
    EXPECT_TRUE(settings->showsSavedKey());
    EXPECT_EQ(*settings->apiKey, "");
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
}

TEST_F(SettingsSheet, WithoutAStoredKeyShowsTheFieldAndADisabledButton)
{
    const auto settings = openedWithoutKey();
    EXPECT_FALSE(settings->showsSavedKey());
    EXPECT_FALSE(settings->isSaveEnabled());
}

TEST_F(SettingsSheet, UntilTheStoreHasAnsweredItShowsThatItLooksAndOffersNoField)
{
    const auto settings = std::make_shared<SettingsView>(SettingsView::Ports{main, state, keys});
    settings->appear();
    EXPECT_EQ(settings->search().text, "Looking for your API key...");
    EXPECT_TRUE(settings->search().showsProgress);
    EXPECT_FALSE(settings->showsField());
    EXPECT_FALSE(settings->showsSavedKey());
    run();
    EXPECT_EQ(settings->search(), presentation::Marker{});
    EXPECT_FALSE(settings->showsField());
    EXPECT_TRUE(settings->showsSavedKey());
    EXPECT_TRUE(openedWithoutKey()->showsField());
}

TEST_F(SettingsSheet, TellsTheKeyOfTheDemoAndNoneInTheProgram)
{
    const SettingsView ofTheDemo(SettingsView::Ports{main, state, keys, "open-sesame"});
    EXPECT_EQ(ofTheDemo.demoHint(),
        (presentation::Marker{.symbol = "info.circle", .text = "The API key of this demo is \"open-sesame\"."}));
    EXPECT_EQ(opened()->demoHint(), presentation::Marker{});
}

TEST_F(SettingsSheet, LooksAtTheStoreOnTheClientsThreadOnly)
{
    const auto settings = std::make_shared<SettingsView>(SettingsView::Ports{main, state, keys});
    const int readsBefore = credentials.reads;
    settings->appear();
    main.run();
    EXPECT_EQ(credentials.reads, readsBefore);
    client.run();
    EXPECT_EQ(credentials.reads, readsBefore + 1);
}

TEST_F(SettingsSheet, AKeyOfWhiteSpaceOnlyLeavesTheButtonDisabledAndTheActionDoesNothing)
{
    const auto settings = openedWithoutKey();
    settings->edit(" \n\t ");
    EXPECT_FALSE(settings->isSaveEnabled());
    settings->saveAndVerify();
    run();
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(SettingsSheet, WhileVerifyingTheButtonIsDisabledAndASecondStartDoesNothing)
{
    const auto settings = openedWithoutKey();
    settings->edit("k-new");
    EXPECT_TRUE(settings->isSaveEnabled());
    settings->saveAndVerify();
    EXPECT_EQ(settings->validationState->kind, Kind::validating);
    EXPECT_FALSE(settings->isSaveEnabled());
    settings->saveAndVerify();
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(SettingsSheet, APastedKeyWithATrailingNewlineIsVerifiedAndStoredWithoutIt)
{
    transport.script(pagesURL, 200, "[]");
    const auto settings = enteredWithoutKey("  k-new\r\n");
    EXPECT_EQ(transport.requests.at(0).headers.at(1).second, "k-new");
    EXPECT_EQ(KeychainHelper::readAPIKey(credentials), "k-new");
}

TEST_F(SettingsSheet, AnAcceptedKeyEmptiesTheFieldAndReadsConnected)
{
    transport.script(pagesURL, 200, "[]");
    const auto settings = enteredWithoutKey("k-new");
    EXPECT_TRUE(settings->showsSavedKey());
    EXPECT_EQ(*settings->apiKey, "");
    EXPECT_EQ(settings->validationState->kind, Kind::valid);
}

TEST_F(SettingsSheet, TheLongestKeyIsVerifiedWhole)
{
    const std::string longest(4096, 'k');
    transport.script(pagesURL, 200, "[]");
    const auto settings = enteredWithoutKey(longest);
    EXPECT_EQ(transport.requests.at(0).headers.at(1).second, longest);
    EXPECT_EQ(KeychainHelper::readAPIKey(credentials), longest);
}

TEST_F(SettingsSheet, ALongerTextIsRefusedInWordsAndNothingIsSent)
{
    for (const auto& text : {std::string(4097, 'k'), " " + std::string(4096, 'k')}) {
        const auto settings = enteredWithoutKey(text);
        EXPECT_EQ(settings->refusal().text, "Invalid or unauthorized API key.");
        EXPECT_TRUE(settings->isSaveEnabled()) << "so that it can be corrected";
    }
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(SettingsSheet, StartsNoRefreshOfItsOwn)
{
    transport.script(pagesURL, 200, "[]");
    const auto settings = enteredWithoutKey("k-new");
    EXPECT_EQ(transport.requests.size(), 1u) << "the verification alone";
}

struct FailureRow {
    platform::HttpTransport::Result answer;
    std::string message;
};

class FailedVerification : public SettingsSheet, public testing::WithParamInterface<FailureRow> {};

TEST_P(FailedVerification, SaysWhyKeepsTheTextAndLeavesTheStoredKeyAlone)
{
    transport.script(pagesURL, GetParam().answer);
    const auto settings = opened();
    settings->edit("k-wrong");
    settings->saveAndVerify();
    run();
    EXPECT_EQ(settings->validationState->kind, Kind::invalid);
    EXPECT_EQ(settings->validationState->message, GetParam().message);
    EXPECT_EQ(*settings->apiKey, "k-wrong");
    EXPECT_EQ(KeychainHelper::readAPIKey(credentials), "k-123");
}

const std::string unauthorized = "Invalid or unauthorized API key.";
const std::string unverified = "Could not verify API key. Please try again.";
const std::string serverError = "Kestrune server error. Try again later.";
const std::string offline = "Network offline. Check your connection and try again.";

INSTANTIATE_TEST_SUITE_P(EachResult, FailedVerification,
    testing::Values(FailureRow{HttpResponse{401, ""}, unauthorized}, FailureRow{HttpResponse{403, ""}, unauthorized},
        FailureRow{HttpResponse{404, ""}, unverified}, FailureRow{HttpResponse{429, ""}, unverified},
        FailureRow{HttpResponse{500, ""}, serverError}, FailureRow{HttpResponse{599, ""}, serverError},
        FailureRow{HttpResponse{600, ""}, unverified}, FailureRow{URLError::Code::cannotFindHost, offline},
        FailureRow{URLError::Code::timedOut, "Request timed out. Kestrune may be slow or unreachable."},
        FailureRow{URLError::Code::serverCertificateUntrusted, unverified}));

TEST_F(SettingsSheet, AStoreThatCannotBeWrittenAfterAGoodVerificationSaysSoAndAnOlderKeyIsLost)
{
    transport.script(pagesURL, 200, "[]");
    const auto settings = opened();
    credentials.refusesToAdd = true;
    settings->edit("k-new");
    settings->saveAndVerify();
    run();
    EXPECT_EQ(settings->validationState->message, "Could not save API key to Keychain.");
    EXPECT_EQ(*settings->apiKey, "k-new");
    EXPECT_TRUE(credentials.items.empty());
}

TEST_F(SettingsSheet, EditingReturnsTheMarkerToIdle)
{
    transport.script(pagesURL, 401, "");
    const auto settings = enteredWithoutKey("k-wrong");
    settings->edit("k-wron");
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
}

TEST_F(SettingsSheet, EditingLeavesAnIdleMarkerAlone)
{
    const auto settings = openedWithoutKey();
    int changes = 0;
    const auto subscription = settings->objectWillChange([&changes] { ++changes; });
    settings->edit("k");
    EXPECT_EQ(changes, 1) << "the text alone";
}

TEST_F(SettingsSheet, AnEditDuringTheVerificationIsOverriddenByItsResult)
{
    const auto settings = enteredWithoutKey("k-wrong");
    settings->edit("k-wron");
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
    transport.answer(HttpResponse{401, ""});
    run();
    EXPECT_EQ(settings->validationState->message, unauthorized);
}

TEST_F(SettingsSheet, AnEditDuringTheVerificationChangesNothingAboutTheKeyThatIsStored)
{
    const auto settings = enteredWithoutKey("k-new");
    settings->edit("k-newer");
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_EQ(KeychainHelper::readAPIKey(credentials), "k-new");
    EXPECT_EQ(*settings->apiKey, "");
    EXPECT_TRUE(settings->showsSavedKey());
    EXPECT_EQ(settings->marker().text, "Connected");
}

TEST_F(SettingsSheet, ADeletionDuringTheVerificationIsDoneAndAnAcceptedKeyIsStoredAfterIt)
{
    const auto settings = opened();
    settings->edit("k-new");
    settings->saveAndVerify();
    run();
    settings->deleteKey();
    run();
    EXPECT_TRUE(credentials.items.empty());
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
    EXPECT_EQ(deletions, 1);

    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_EQ(KeychainHelper::readAPIKey(credentials), "k-new");
    EXPECT_EQ(settings->validationState->kind, Kind::valid);
}

TEST_F(SettingsSheet, ClosedDuringTheVerificationItStillStoresAnAcceptedKey)
{
    auto settings = enteredWithoutKey("k-new");
    settings.reset();
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_EQ(KeychainHelper::readAPIKey(credentials), "k-new");
}

TEST_F(SettingsSheet, ReopenedAfterAFailureStartsWithoutTheOldText)
{
    auto settings = openedWithoutKey();
    settings->edit("k-wrong");
    settings = opened();
    EXPECT_EQ(*settings->apiKey, "");
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
}

TEST_F(SettingsSheet, DeletingAsksFirstAndCancelDoesNothing)
{
    const auto settings = opened();
    settings->confirmDelete();
    EXPECT_TRUE(*settings->showDeleteConfirmation);
    settings->cancelDelete();
    run();
    EXPECT_FALSE(*settings->showDeleteConfirmation);
    EXPECT_TRUE(*settings->hasExistingKey);
    EXPECT_EQ(deletions, 0);
}

TEST_F(SettingsSheet, DeletingRemovesTheKeyResetsTheScreenAndTellsItsOpener)
{
    const auto settings = opened();
    settings->edit("half a key");
    settings->confirmDelete();
    settings->deleteKey();
    EXPECT_FALSE(*settings->showDeleteConfirmation);
    run();
    EXPECT_TRUE(credentials.items.empty());
    EXPECT_EQ(*settings->apiKey, "");
    EXPECT_FALSE(*settings->hasExistingKey);
    EXPECT_EQ(settings->validationState->kind, Kind::idle);
    EXPECT_EQ(deletions, 1);
}

TEST_F(SettingsSheet, DeletingWithNobodyToTellStillDeletesAndResets)
{
    const auto settings = std::make_shared<SettingsView>(SettingsView::Ports{main, state, keys});
    settings->appear();
    run();
    settings->deleteKey();
    run();
    EXPECT_TRUE(credentials.items.empty());
    EXPECT_FALSE(*settings->hasExistingKey);
}

struct MarkerRow {
    SettingsView::ValidationState state;
    presentation::Marker marker;
};

class SettingsMarker : public SettingsSheet, public testing::WithParamInterface<MarkerRow> {};

TEST_P(SettingsMarker, TellsTheProgressOfTheLastVerificationAndUnderTheFieldAFailureAlone)
{
    const auto settings = opened();
    settings->validationState = GetParam().state;
    EXPECT_EQ(settings->marker(), GetParam().marker);
    const bool isFailure = GetParam().state.kind == Kind::invalid;
    EXPECT_EQ(settings->refusal(), isFailure ? GetParam().marker : presentation::Marker{});
}

INSTANTIATE_TEST_SUITE_P(EachState, SettingsMarker,
    testing::Values(MarkerRow{{Kind::idle}, {}},
        MarkerRow{{Kind::validating}, {.text = "Verifying...", .showsProgress = true}},
        MarkerRow{{Kind::valid},
            {.symbol = "checkmark.circle.fill",
                .symbolTone = presentation::Tone::green,
                .text = "Connected",
                .tone = presentation::Tone::green}},
        MarkerRow{{Kind::invalid, "No."},
            {.symbol = "exclamationmark.triangle.fill",
                .symbolTone = presentation::Tone::orange,
                .text = "No.",
                .tone = presentation::Tone::orange}}));

}  // namespace

}  // namespace larkspan::workspace
