#pragma once

#include <string>

#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "support/Task.h"

namespace larkspan::api {

/// Access to the stored API key from the main thread: each operation runs on the client's executor, so that a store
/// that waits for the user does not block the screen. Must outlive every task that it has returned.
class APIKeyStore {
public:
    APIKeyStore(platform::Executor& executor, platform::CredentialStore& credentials)
        : executor_(executor)
        , credentials_(credentials)
    {
    }

    /// Whether the store contains a key, even an empty one. Does not return the key.
    support::Task<bool> hasAPIKey();

    /// Replaces the stored key; returns whether `key` is stored.
    support::Task<bool> saveAPIKey(std::string key);

    support::Task<void> deleteAPIKey();

private:
    platform::Executor& executor_;
    platform::CredentialStore& credentials_;
};

}  // namespace larkspan::api
