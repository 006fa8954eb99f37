#pragma once

#include <QString>

namespace larkspan::adapters {

/// The activation token from the launcher, with which a window may take the focus; empty if there is none. Call it
/// before the application object is made: Qt removes the token from the environment.
QString launchActivationToken();

}  // namespace larkspan::adapters
