#pragma once

#include <QString>

#include <functional>

#include "ServiceAccess.h"
#include "adapters/MainExecutor.h"
#include "adapters/SessionBus.h"
#include "adapters/secrets/SecretServiceStore.h"

namespace larkspan {

/// What makes one executable of the application differ from another.
struct Launch {
    using Prompts = adapters::SecretServiceStore::Prompts;
    using Use = std::function<void(ServiceAccess service)>;

    const char* executable;
    /// The name that its one instance has on the session bus.
    QString busName;
    /// What the desktop calls it.
    QString displayName;
    /// The file of its icon, if the desktop does not know it from the installation.
    QString icon = {};
    /// Calls `use` with a service that lives until it returns.
    std::function<void(adapters::MainExecutor& main, const adapters::SessionBus& bus, Prompts prompts, const Use& use)>
        withService;
};

/// Does what the arguments ask for: starts the application, or answers on the terminal. Returns the exit code.
int launch(int argc, char** argv, const Launch& launched);

}  // namespace larkspan
