#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "api/APIKeyStore.h"
#include "core/AppStateManager.h"
#include "platform/Executor.h"
#include "presentation/shapes/Confirmation.h"
#include "presentation/shapes/Marker.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::workspace {

/// The settings sheet: a key is pasted, verified, stored and deleted. Main thread only. A new object is made each time
/// the sheet opens; closing it cancels nothing, so a key that is being verified is still stored if it is accepted.
class SettingsView final : public support::Observable, public std::enable_shared_from_this<SettingsView> {
public:
    struct Ports {
        platform::Executor& main;
        std::shared_ptr<core::AppStateManager> appState;
        api::APIKeyStore& keys;
        /// The only key that works, if that is no secret; empty if it is the user's own.
        std::string demoKey = {};
    };

    struct ValidationState {
        enum class Kind { idle, validating, valid, invalid };

        Kind kind = Kind::idle;
        std::string message = {};

        bool operator==(const ValidationState&) const = default;
    };

    static constexpr presentation::Confirmation deleteConfirmation{.title = "Delete API Key",
        .text = "Are you sure you want to delete your API key? You will need to enter it again to use the app.",
        .confirm = "Delete",
        .cancel = "Cancel"};

    explicit SettingsView(Ports ports, std::function<void()> onApiKeyDeleted = {});

    /// Longer than any key, and short enough for a request's header everywhere.
    static constexpr std::size_t longestKey = 4096;
    static constexpr std::string_view lookingText = "Looking for your API key...";

    support::Published<std::string> apiKey{*this};
    /// Whether the store has not answered yet if it contains a key; it may be waiting for the user.
    support::Published<bool> isLooking{*this, false};
    support::Published<bool> hasExistingKey{*this, false};
    support::Published<ValidationState> validationState{*this};
    support::Published<bool> showDeleteConfirmation{*this, false};

    /// Whether the row "API key saved" is shown in place of the field.
    bool showsSavedKey() const { return *hasExistingKey && apiKey->empty(); }
    /// Whether the field and its controls are shown.
    bool showsField() const { return !*isLooking && !showsSavedKey(); }
    bool isSaveEnabled() const;
    /// Beside "API key saved": the result of the verification; empty while nothing has been verified.
    presentation::Marker marker() const;
    /// Under the field: why the key was refused; empty if it was not.
    presentation::Marker refusal() const;
    /// Under that: which key works in the demo; empty in the program.
    presentation::Marker demoHint() const;
    /// In place of both, while the store is asked.
    presentation::Marker search() const;

    /// Called when the sheet opens: checks whether a key is stored.
    void appear();

    /// Called when the user changes the field.
    void edit(std::string text);

    void saveAndVerify();
    void confirmDelete();
    void cancelDelete() { showDeleteConfirmation = false; }

    /// Deletes the key; called when the user has confirmed.
    void deleteKey();

private:
    static support::Task<void> lookForKey(std::shared_ptr<SettingsView> self);
    static support::Task<void> verify(std::shared_ptr<SettingsView> self, std::string key);
    static support::Task<void> removeKey(std::shared_ptr<SettingsView> self);

    Ports ports_;
    std::function<void()> onApiKeyDeleted_;
};

}  // namespace larkspan::workspace
