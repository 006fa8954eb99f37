#pragma once

#include <string>

#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "support/Task.h"

namespace larkspan::api {

/// The stored API key for those on the main thread: each operation runs on the client's executor, where a store
/// that waits for the user holds up nothing on screen. It must outlive every task that it gave.
class APIKeyStore {
public:
    APIKeyStore(platform::Executor& executor, platform::CredentialStore& credentials)
        : executor_(executor)
        , credentials_(credentials)
    {
    }

    /// Whether the store gives a key, an empty one included. The key itself stays where it is.
    support::Task<bool> hasAPIKey();

    /// Replaces the stored key, and says whether `key` is stored now.
    support::Task<bool> saveAPIKey(std::string key);

    support::Task<void> deleteAPIKey();

private:
    platform::Executor& executor_;
    platform::CredentialStore& credentials_;
};

}  // namespace larkspan::api
