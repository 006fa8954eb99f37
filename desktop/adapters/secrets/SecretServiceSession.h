#pragma once

#include <libsecret/secret.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/secrets/SecretServiceBus.h"
#include "adapters/secrets/SecretServiceChanges.h"
#include "platform/CredentialStore.h"

namespace larkspan::adapters {

/// The program's session with the Secret Service. It is kept between operations, because services leak memory with
/// every session that is opened, and is opened again after the service was restarted. The calls have the deadline of
/// `SecretServiceBus`. One thread at a time.
class SecretServiceSession {
public:
    /// Encloses the calls of one operation: opens the session if necessary and starts the deadline.
    class Conversation {
    public:
        explicit Conversation(SecretServiceSession& session);
        /// Takes `patience` at most.
        Conversation(SecretServiceSession& session, std::chrono::milliseconds patience);

    private:
        GLibLoop::Entry entry_;
    };

    using Path = std::string;
    /// Asked before a prompt is shown; false has the effect of a dismissed prompt.
    using MayPrompt = std::function<bool()>;

    struct Found {
        std::vector<Path> unlocked;
        std::vector<Path> locked;
    };

    SecretServiceSession(const GLibStop& stop, std::chrono::milliseconds patience);

    /// Whether a service answers; required by the other calls.
    bool isOpen() const { return service_ != nullptr; }

    /// Whether anything may have changed since the last call of `forgetChanges`. Changes that an answer reflects are
    /// known when the answer arrives.
    bool hasChanges() const { return !changes_ || changes_->haveHappened(); }
    void forgetChanges()
    {
        if (changes_) changes_->forget();
    }

    /// The items with these attributes. Shows no prompt.
    Found search(const platform::CredentialItem& item);

    /// Unlocks an item or a collection.
    bool unlock(const Path& path, const MayPrompt& mayPrompt);

    std::optional<std::string> secret(const Path& item);

    /// The time of the item's last change, in seconds; 0 if the service does not say.
    guint64 modificationTime(const Path& item);

    void remove(const Path& item);

    /// The collection for new items. A user without any collection is asked to make one.
    std::optional<Path> defaultCollection(const MayPrompt& mayPrompt);

    /// Adds an item, or replaces the one with the same attributes in `collection`.
    bool create(const Path& collection, const platform::CredentialItem& item, const std::string& secret);

private:
    void open();
    bool isCurrent();
    std::optional<VariantPointer> runPrompt(const Path& path, const MayPrompt& mayPrompt);

    SecretServiceBus bus_;
    ObjectPointer<SecretService> service_;
    /// The unique bus name of the process at the other end of the session.
    std::string owner_;
    std::optional<SecretServiceChanges> changes_;
};

}  // namespace larkspan::adapters
