#pragma once

#include <QString>

namespace larkspan::adapters {

/// The activation token from the launcher, with which a window may take the focus; empty if there is none. Call it
/// before the application object is made and before other threads run: Qt removes the token from the environment, and
/// the place of later ones is prepared there.
QString launchActivationToken();

}  // namespace larkspan::adapters
