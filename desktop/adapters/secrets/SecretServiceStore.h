#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "platform/CredentialStore.h"

namespace larkspan::adapters {

class GLibStop;
class SecretServiceSession;

/// The user's keyring, through the Secret Service of the session bus.
///
/// Call the operations on the client's thread: they block until the service answers, for at most `patience` altogether,
/// and until a prompt that they show is closed; the window stays responsive meanwhile.
///
/// For a locked keyring one prompt is shown. If it is dismissed, the secret counts as absent, and no further prompt is
/// shown until `allowPromptAgain()`, an addition or removal, or until the keyring is found unlocked.
class SecretServiceStore final : public platform::CredentialStore {
public:
    enum class Prompts {
        allowed,
        /// A locked secret counts as absent: for a process without a user in front of it.
        never,
    };

    explicit SecretServiceStore(
        std::chrono::milliseconds patience = std::chrono::seconds(10), Prompts prompts = Prompts::allowed);
    ~SecretServiceStore() override;

    /// Opens the session, so that the first read need not wait for that. Shows no prompt, and gives up after a second;
    /// the read then tries again with its full `patience`.
    void open();

    /// Of several matching items, returns the one that was changed last. Unlocked items are preferred to those that
    /// need a prompt.
    std::optional<std::string> find(const platform::CredentialItem& item) override;

    /// Fails if a matching item stays locked.
    bool add(const platform::CredentialItem& item, const std::string& secret) override;

    /// Removes every matching item, locked ones with the user's consent. As the user has asked for it, an earlier
    /// dismissal of the prompt no longer counts.
    void remove(const platform::CredentialItem& item) override;

    /// Allows the next prompt, because the user has done something that needs the secret. Any thread.
    void allowPromptAgain() override { mayPrompt_ = true; }

    /// Ends the running operation; all later ones end at once. For the end of the program. Any thread.
    void stop();

private:
    /// The place where the last secret was found.
    struct Place {
        std::string service;
        std::string account;
        std::string path;
    };

    std::optional<std::string> findWhereItWas(const platform::CredentialItem& item);
    bool unlock(const std::string& path);

    std::unique_ptr<GLibStop> stop_;
    std::unique_ptr<SecretServiceSession> session_;
    const Prompts prompts_;
    std::atomic<bool> mayPrompt_ = true;
    std::optional<Place> lastPlace_;
};

}  // namespace larkspan::adapters
