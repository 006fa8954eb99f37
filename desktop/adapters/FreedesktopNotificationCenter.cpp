#include "adapters/FreedesktopNotificationCenter.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

namespace larkspan::adapters {

void FreedesktopNotificationCenter::add(const platform::NotificationRequest& request)
{
    auto call = QDBusMessage::createMethodCall(
        "org.freedesktop.Notifications", "/org/freedesktop/Notifications", "org.freedesktop.Notifications", "Notify");
    const auto body = QString::fromStdString(request.subtitle + "\n" + request.body);
    call << QStringLiteral("Kestrune") << 0U << QStringLiteral("com.kestrune.larkspan")
         << QString::fromStdString(request.title) << body << QStringList() << QVariantMap() << -1;
    bus_.asyncCall(call);
}

}  // namespace larkspan::adapters
