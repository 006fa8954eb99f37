#pragma once

#include <QString>

namespace larkspan::adapters {

/// What the launcher gave this process so that its window may take the focus; empty if it gave nothing.
/// Read it before the application object is made: Qt takes it out of the environment.
QString launchActivationToken();

}  // namespace larkspan::adapters
