#include "adapters/secrets/SecretServiceNews.h"

#include "adapters/secrets/SecretServiceBus.h"

namespace larkspan::adapters {

SecretServiceNews::SecretServiceNews(GDBusConnection* connection)
    : connection_(G_DBUS_CONNECTION(g_object_ref(connection)))
    , subscription_(g_dbus_connection_signal_subscribe(
          connection, SecretServiceBus::serviceName, nullptr, nullptr, nullptr, nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
          [](GDBusConnection*, const char*, const char*, const char*, const char*, GVariant*, gpointer haveCome) {
              *static_cast<bool*>(haveCome) = true;
          },
          &haveCome_, nullptr))
{
}

SecretServiceNews::~SecretServiceNews()
{
    g_dbus_connection_signal_unsubscribe(connection_.get(), subscription_);
}

}  // namespace larkspan::adapters
