#include "demo/MemoryCredentialStore.h"

namespace larkspan::simulator {

namespace {

std::pair<std::string, std::string> attributes(const platform::CredentialItem& item)
{
    return {std::string(item.service), std::string(item.account)};
}

}  // namespace

std::optional<std::string> MemoryCredentialStore::find(const platform::CredentialItem& item)
{
    const auto found = secrets_.find(attributes(item));
    return found == secrets_.end() ? std::nullopt : std::optional(found->second);
}

bool MemoryCredentialStore::add(const platform::CredentialItem& item, const std::string& secret)
{
    return secrets_.emplace(attributes(item), secret).second;
}

void MemoryCredentialStore::remove(const platform::CredentialItem& item)
{
    secrets_.erase(attributes(item));
}

}  // namespace larkspan::simulator
