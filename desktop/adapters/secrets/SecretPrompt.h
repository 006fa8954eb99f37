#pragma once

#include <optional>
#include <string>

#include "adapters/secrets/SecretServiceBus.h"

namespace larkspan::adapters {

/// The service's own dialog with the user, such as the one for the keyring's password.
class SecretPrompt {
public:
    SecretPrompt(SecretServiceBus& bus, std::string path);

    /// Shows the prompt and waits until it is closed, even for minutes, while the service is alive. Returns the result
    /// that follows the user's consent; empty if the user dismissed the prompt, or it was lost.
    std::optional<VariantPointer> run();

    /// Discards a prompt that is not to be shown.
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
