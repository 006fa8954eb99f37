#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/CredentialStore.h"

namespace larkspan::fakes {

/// A store in memory that counts its calls and can refuse to add.
class FakeCredentialStore final : public platform::CredentialStore {
public:
    using Attributes = std::pair<std::string, std::string>;

    std::optional<std::string> find(const platform::CredentialItem& item) override
    {
        ++reads;
        const auto found = items.find(attributes(item));
        if (found == items.end()) return std::nullopt;
        return found->second;
    }

    bool add(const platform::CredentialItem& item, const std::string& secret) override
    {
        if (refusesToAdd) return false;
        return items.emplace(attributes(item), secret).second;
    }

    void remove(const platform::CredentialItem& item) override { items.erase(attributes(item)); }

    void allowPromptAgain() override { ++promptsAllowed; }

    std::map<Attributes, std::string> items;
    int reads = 0;
    int promptsAllowed = 0;
    bool refusesToAdd = false;

private:
    static Attributes attributes(const platform::CredentialItem& item)
    {
        return {std::string(item.service), std::string(item.account)};
    }
};

}  // namespace larkspan::fakes
