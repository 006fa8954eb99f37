#pragma once

#include <optional>
#include <string>

#include "adapters/secrets/SecretServiceBus.h"

namespace larkspan::adapters {

/// The service's own dialog with the user, such as the one for the keyring's password.
class SecretPrompt {
public:
    SecretPrompt(SecretServiceBus& bus, std::string path);

    /// Raises the prompt and waits as long as it stands, be it minutes, while the service is alive. Gives what the
    /// user's consent brought; absent if the user dismissed the prompt, or it was lost.
    std::optional<VariantPointer> run();

    /// For a prompt that is not to be raised.
    void dismiss();

private:
    struct Progress {
        bool hasCompleted = false;
        bool isDismissed = true;
        VariantPointer result;
        bool isServiceLost = false;
    };

    bool raise();
    bool serviceAnswers();
    void awaitEnd(const Progress& progress);

    SecretServiceBus& bus_;
    std::string path_;
};

}  // namespace larkspan::adapters
