#include "api/APIKeyStore.h"

#include <utility>

#include "api/KeychainHelper.h"

namespace larkspan::api {

using support::Task;

namespace {

Task<bool> has(platform::CredentialStore& credentials)
{
    co_return KeychainHelper::readAPIKey(credentials).has_value();
}

Task<bool> save(platform::CredentialStore& credentials, std::string key)
{
    co_return KeychainHelper::saveAPIKey(credentials, key);
}

Task<void> remove(platform::CredentialStore& credentials)
{
    KeychainHelper::deleteAPIKey(credentials);
    co_return;
}

}  // namespace

Task<bool> APIKeyStore::hasAPIKey()
{
    return support::on(executor_, has(credentials_));
}

Task<bool> APIKeyStore::saveAPIKey(std::string key)
{
    return support::on(executor_, save(credentials_, std::move(key)));
}

Task<void> APIKeyStore::deleteAPIKey()
{
    return support::on(executor_, remove(credentials_));
}

}  // namespace larkspan::api
