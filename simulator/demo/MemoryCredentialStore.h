#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/CredentialStore.h"

namespace larkspan::simulator {

/// Keeps secrets until the process ends. One thread at a time, as the port requires.
class MemoryCredentialStore final : public platform::CredentialStore {
public:
    std::optional<std::string> find(const platform::CredentialItem& item) override;
    bool add(const platform::CredentialItem& item, const std::string& secret) override;
    void remove(const platform::CredentialItem& item) override;
    void allowPromptAgain() override {}

private:
    std::map<std::pair<std::string, std::string>, std::string> secrets_;
};

}  // namespace larkspan::simulator
