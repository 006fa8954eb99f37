#include "adapters/ActivationToken.h"

#include <QtGlobal>

namespace larkspan::adapters {

namespace {

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

}  // namespace

QString launchActivationToken()
{
    const auto token = qgetenv(variable);
    // Later, Qt takes each token from the environment, where this program puts it, while other threads read variables
    // of theirs. The last variable comes and goes without moving another one, and the C library keeps the room that it
    // has made for it here, before there are other threads.
    qunsetenv(variable);
    qputenv(variable, token);
    if (token.isEmpty()) qunsetenv(variable);
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : QString::fromLocal8Bit(token);
}

}  // namespace larkspan::adapters
