#pragma once

#include <QDBusConnection>

#include <utility>

#include "platform/NotificationCenter.h"

namespace larkspan::adapters {

/// Notifications as Linux desktops have them: `org.freedesktop.Notifications` on the session bus.
class FreedesktopNotificationCenter final : public platform::NotificationCenter {
public:
    explicit FreedesktopNotificationCenter(QDBusConnection bus)
        : bus_(std::move(bus))
    {
    }

    /// Nothing to ask: here the user settles in the desktop which programs may notify, and programs are not told.
    void requestAuthorization() override {}
    void add(const platform::NotificationRequest& request) override;

private:
    QDBusConnection bus_;
};

}  // namespace larkspan::adapters
