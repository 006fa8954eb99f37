#pragma once

#include <libsecret/secret.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/secrets/SecretServiceBus.h"
#include "adapters/secrets/SecretServiceNews.h"
#include "platform/CredentialStore.h"

namespace larkspan::adapters {

/// The program's session with the Secret Service, and what it asks of it. It is kept from one operation to the next,
/// because services lose memory with every session that is opened, and opened anew after the service was restarted.
/// The calls end as those of `SecretServiceBus` do. One thread at a time.
class SecretServiceSession {
public:
    /// Encloses the calls of one operation: opens the session if it has to, and begins the deadline.
    class Conversation {
    public:
        explicit Conversation(SecretServiceSession& session);
        /// As long as `patience` at most.
        Conversation(SecretServiceSession& session, std::chrono::milliseconds patience);

    private:
        GLibLoop::Entry entry_;
    };

    using Path = std::string;
    /// Asked when only a prompt leads on; a refusal is as if the user had dismissed it.
    using MayPrompt = std::function<bool()>;

    struct Found {
        std::vector<Path> unlocked;
        std::vector<Path> locked;
    };

    SecretServiceSession(const GLibStop& stop, std::chrono::milliseconds patience);

    /// Whether there is a service that answers; the other calls need one.
    bool isOpen() const { return service_ != nullptr; }

    /// Whether anything may have changed since the last call of `forgetNews`. What an answer reports has been heard
    /// once the answer is there.
    bool hasNews() const { return news_->haveCome(); }
    void forgetNews() { news_->forget(); }

    /// The items with these attributes. Raises no prompt.
    Found search(const platform::CredentialItem& item);

    /// Unlocks an item or a collection.
    bool unlock(const Path& path, const MayPrompt& mayPrompt);

    std::optional<std::string> secret(const Path& item);

    /// When the item was changed last, in seconds; 0 if the service doesn't say.
    guint64 modificationTime(const Path& item);

    void remove(const Path& item);

    /// Where new items go. A user without any collection is asked to make one.
    std::optional<Path> defaultCollection(const MayPrompt& mayPrompt);

    /// Adds an item; one with the same attributes in the same collection is replaced.
    bool create(const Path& collection, const platform::CredentialItem& item, const std::string& secret);

private:
    void open();
    bool isCurrent();
    std::optional<VariantPointer> runPrompt(const Path& path, const MayPrompt& mayPrompt);

    SecretServiceBus bus_;
    ObjectPointer<SecretService> service_;
    /// The bus name of the very process that the session is with.
    std::string owner_;
    std::optional<SecretServiceNews> news_;
};

}  // namespace larkspan::adapters
