#include "adapters/secrets/SecretServiceChanges.h"

#include "adapters/secrets/SecretServiceBus.h"

namespace larkspan::adapters {

SecretServiceChanges::SecretServiceChanges(GDBusConnection* connection)
    : connection_(G_DBUS_CONNECTION(g_object_ref(connection)))
    , subscription_(g_dbus_connection_signal_subscribe(
          connection, SecretServiceBus::serviceName, nullptr, nullptr, nullptr, nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
          [](GDBusConnection*, const char*, const char*, const char*, const char*, GVariant*, gpointer haveHappened) {
              *static_cast<bool*>(haveHappened) = true;
          },
          &haveHappened_, nullptr))
{
}

SecretServiceChanges::~SecretServiceChanges()
{
    g_dbus_connection_signal_unsubscribe(connection_.get(), subscription_);
}

}  // namespace larkspan::adapters
