#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::platform {

/// The attributes that identify a secret; these two and no others.
struct CredentialItem {
    std::string_view service;
    std::string_view account;
};

/// The user's store of secrets. Calls may block on the store and on its prompt, so they are made on the client's
/// executor, never on the main one; the implementation limits how long each takes.
class CredentialStore {
public:
    virtual ~CredentialStore() = default;

    /// The item's bytes; absent if there is none or the store cannot give it.
    virtual std::optional<std::string> find(const CredentialItem& item) = 0;

    /// Adds the item; returns whether it is stored.
    virtual bool add(const CredentialItem& item, const std::string& secret) = 0;

    /// Removes the item if it exists.
    virtual void remove(const CredentialItem& item) = 0;

    /// Allows the store to show a prompt once more after the user dismissed one. Call it when the user does something
    /// that needs the secret. Any thread.
    virtual void allowPromptAgain() = 0;
};

}  // namespace larkspan::platform
