#include "adapters/ActivationToken.h"

#include <QtGlobal>

namespace larkspan::adapters {

QString launchActivationToken()
{
    const auto token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

}  // namespace larkspan::adapters
