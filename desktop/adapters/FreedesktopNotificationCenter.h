#pragma once

#include "platform/NotificationCenter.h"

namespace larkspan::adapters {

/// Notifications as Linux desktops have them.
class FreedesktopNotificationCenter final : public platform::NotificationCenter {
public:
    /// Nothing to ask: here the user settles in the desktop which programs may notify, and programs are not told.
    void requestAuthorization() override {}
};

}  // namespace larkspan::adapters
