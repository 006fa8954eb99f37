#pragma once

#include <optional>
#include <string>

#include "platform/CredentialStore.h"

namespace larkspan::api {

/// The one secret that outlives the program: the API key, as UTF-8 text in the user's credential store. Nothing is
/// cached. The store may block, so call these functions on the client's executor.
struct KeychainHelper {
    static constexpr platform::CredentialItem item{.service = "KestruneAPIKeyService", .account = "KestruneAPIKey"};

    /// The stored key, which may be empty; absent if there is none, the store fails or the bytes are not UTF-8.
    static std::optional<std::string> readAPIKey(platform::CredentialStore& store);

    /// Replaces the stored key; returns whether `key` is stored. If only adding fails, no key is left.
    static bool saveAPIKey(platform::CredentialStore& store, const std::string& key);

    /// Removes the key; does nothing if there is none.
    static void deleteAPIKey(platform::CredentialStore& store);
};

}  // namespace larkspan::api
