#include "workspace/SettingsView.h"

#include <utility>

#include "support/Trimming.h"

namespace larkspan::workspace {

using core::APIKeyVerificationResult;
using support::Task;

namespace {

SettingsView::ValidationState invalid(std::string message)
{
    return {SettingsView::ValidationState::Kind::invalid, std::move(message)};
}

/// With a buffer of its own, so that the one that has held the key is released and not kept for later texts.
std::string emptyText()
{
    std::string empty;
    empty.reserve(SettingsView::longestKey);
    return empty;
}

std::string failureText(APIKeyVerificationResult result)
{
    switch (result) {
    case APIKeyVerificationResult::invalid: return "Invalid or unauthorized API key.";
    case APIKeyVerificationResult::offline: return "Network offline. Check your connection and try again.";
    case APIKeyVerificationResult::timedOut: return "Request timed out. Kestrune may be slow or unreachable.";
    case APIKeyVerificationResult::serverError: return "Kestrune server error. Try again later.";
    case APIKeyVerificationResult::valid:
    case APIKeyVerificationResult::unknown: break;
    }
    return "Could not verify API key. Please try again.";
}

}  // namespace

SettingsView::SettingsView(Ports ports, std::function<void()> onApiKeyDeleted)
    : ports_(std::move(ports))
    , onApiKeyDeleted_(std::move(onApiKeyDeleted))
{
}

bool SettingsView::isSaveEnabled() const
{
    return !support::trimmed(*apiKey).empty() && validationState->kind != ValidationState::Kind::validating;
}

presentation::Marker SettingsView::marker() const
{
    using presentation::Tone;
    switch (validationState->kind) {
    case ValidationState::Kind::validating:
        return {.text = "Verifying...", .tone = Tone::secondary, .showsProgress = true};
    case ValidationState::Kind::valid:
        return {.symbol = "checkmark.circle.fill", .symbolTone = Tone::green, .text = "Connected", .tone = Tone::green};
    case ValidationState::Kind::invalid:
        return {.symbol = "exclamationmark.triangle.fill",
            .symbolTone = Tone::orange,
            .text = validationState->message,
            .tone = Tone::orange};
    case ValidationState::Kind::idle: break;
    }
    return {};
}

presentation::Marker SettingsView::refusal() const
{
    return validationState->kind == ValidationState::Kind::invalid ? marker() : presentation::Marker{};
}

presentation::Marker SettingsView::demoHint() const
{
    if (ports_.demoKey.empty()) return {};
    return {.symbol = "info.circle", .text = "The API key of this demo is \"" + ports_.demoKey + "\"."};
}

presentation::Marker SettingsView::search() const
{
    if (!*isLooking) return {};
    return {.text = std::string(lookingText), .tone = presentation::Tone::secondary, .showsProgress = true};
}

void SettingsView::appear()
{
    isLooking = true;
    support::start(ports_.main, lookForKey(shared_from_this()));
}

Task<void> SettingsView::lookForKey(std::shared_ptr<SettingsView> self)
{
    auto looking = self->ports_.keys.hasAPIKey();
    self->hasExistingKey = co_await std::move(looking);
    self->isLooking = false;
}

void SettingsView::edit(std::string text)
{
    if (text == *apiKey) return;
    apiKey = std::move(text);
    if (validationState->kind != ValidationState::Kind::idle) validationState = {};
}

void SettingsView::saveAndVerify()
{
    std::string key(support::trimmed(*apiKey));
    if (key.empty() || !isSaveEnabled()) return;
    // The field accepts only one character more, so it may not contain all of a pasted text.
    if (apiKey->size() > longestKey) {
        validationState = invalid(failureText(APIKeyVerificationResult::invalid));
        return;
    }
    validationState = {ValidationState::Kind::validating};
    support::start(ports_.main, verify(shared_from_this(), std::move(key)));
}

Task<void> SettingsView::verify(std::shared_ptr<SettingsView> self, std::string key)
{
    auto verifying = self->ports_.appState->verifyAPIKey(key);
    const auto result = co_await std::move(verifying);
    if (result != APIKeyVerificationResult::valid) {
        self->validationState = invalid(failureText(result));
        co_return;
    }
    auto saving = self->ports_.keys.saveAPIKey(std::move(key));
    const bool isSaved = co_await std::move(saving);
    if (!isSaved) {
        self->validationState = invalid("Could not save API key to Keychain.");
        co_return;
    }
    self->hasExistingKey = true;
    self->apiKey = emptyText();
    self->validationState = {ValidationState::Kind::valid};
}

void SettingsView::confirmDelete()
{
    showDeleteConfirmation = true;
}

void SettingsView::deleteKey()
{
    showDeleteConfirmation = false;
    support::start(ports_.main, removeKey(shared_from_this()));
}

Task<void> SettingsView::removeKey(std::shared_ptr<SettingsView> self)
{
    auto removing = self->ports_.keys.deleteAPIKey();
    co_await std::move(removing);
    self->apiKey = emptyText();
    self->hasExistingKey = false;
    self->validationState = {};
    if (self->onApiKeyDeleted_) self->onApiKeyDeleted_();
}

}  // namespace larkspan::workspace
