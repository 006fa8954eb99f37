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
/// Call the operations on the client's thread: they wait for the service, for at most `patience` altogether, and for a
/// prompt that they raise as long as it stands, while the window lives on behind it. An operation begun meanwhile
/// waits its turn there.
///
/// A locked keyring is asked for with one prompt. Dismissed, the secret counts as absent and no further prompt is
/// raised until `allowPromptAgain()`, an addition or removal, or until the keyring was found unlocked in between.
class SecretServiceStore final : public platform::CredentialStore {
public:
    explicit SecretServiceStore(std::chrono::milliseconds patience = std::chrono::seconds(10));
    ~SecretServiceStore() override;

    /// Opens the session, so that the first read need not wait for that. Raises no prompt, and gives up after a second:
    /// the read then tries again with all its patience.
    void open();

    /// Of several matching items, the one changed last. An unlocked one goes before any that needs a prompt.
    std::optional<std::string> find(const platform::CredentialItem& item) override;

    /// Fails beside an item that matches and stays locked.
    bool add(const platform::CredentialItem& item, const std::string& secret) override;

    /// Removes every matching item; locked ones with the user's consent. That is always the user's own wish, so a
    /// prompt dismissed before doesn't count any more.
    void remove(const platform::CredentialItem& item) override;

    /// The user has done something that asks for the secret: the next prompt may be raised. Any thread.
    void allowPromptAgain() override { mayPrompt_ = true; }

    /// Ends the running operation and, at once, all later ones: the program ends. Any thread.
    void stop();

private:
    /// Where the last secret was found.
    struct Place {
        std::string service;
        std::string account;
        std::string path;
    };

    std::optional<std::string> findWhereItWas(const platform::CredentialItem& item);
    bool unlock(const std::string& path);

    std::unique_ptr<GLibStop> stop_;
    std::unique_ptr<SecretServiceSession> session_;
    std::atomic<bool> mayPrompt_ = true;
    std::optional<Place> lastPlace_;
};

}  // namespace larkspan::adapters
