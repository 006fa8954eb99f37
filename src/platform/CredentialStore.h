#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::platform {

/// Where a secret stands; these two attributes and no others.
struct CredentialItem {
    std::string_view service;
    std::string_view account;
};

/// The user's store of secrets. Calls may block on the store and on its prompt, so they are made on the
/// client's executor, never on the main one; each ends within a deadline of the implementation's.
class CredentialStore {
public:
    virtual ~CredentialStore() = default;

    /// The item's bytes; absent if there is none or the store cannot give it.
    virtual std::optional<std::string> find(const CredentialItem& item) = 0;

    /// Adds the item, and says whether it is stored now.
    virtual bool add(const CredentialItem& item, const std::string& secret) = 0;

    /// Removes the item if it is there.
    virtual void remove(const CredentialItem& item) = 0;

    /// The user has done something that needs the secret: a prompt of the store's that they dismissed before may come
    /// again, once. Any thread.
    virtual void allowPromptAgain() = 0;
};

}  // namespace larkspan::platform
