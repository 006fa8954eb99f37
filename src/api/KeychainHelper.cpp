#include "api/KeychainHelper.h"

#include "support/Utf8.h"

namespace larkspan::api {

std::optional<std::string> KeychainHelper::readAPIKey(platform::CredentialStore& store)
{
    auto secret = store.find(item);
    if (secret && !support::isValidUtf8(*secret)) return std::nullopt;
    return secret;
}

bool KeychainHelper::saveAPIKey(platform::CredentialStore& store, const std::string& key)
{
    if (!support::isValidUtf8(key)) return false;
    deleteAPIKey(store);
    return store.add(item, key);
}

void KeychainHelper::deleteAPIKey(platform::CredentialStore& store)
{
    store.remove(item);
}

}  // namespace larkspan::api
