#include "adapters/secrets/SecretServiceBus.h"

#include <limits>

namespace larkspan::adapters {

SecretServiceBus::SecretServiceBus(const GLibStop& stop, std::chrono::milliseconds patience)
    : loop_(stop)
    , patience_(patience)
{
}

bool SecretServiceBus::connect()
{
    if (connection_ && g_dbus_connection_is_closed(connection_.get()) == FALSE) return true;
    // GLib returns the old connection for as long as somebody holds it, such as a subscription that ends in the loop.
    connection_.reset();
    loop_.catchUp();
    const auto result = loop_.await(deadline_, [](GCancellable* cancellable, GAsyncReadyCallback ready, gpointer data) {
        g_bus_get(G_BUS_TYPE_SESSION, cancellable, ready, data);
    });
    connection_.reset(g_bus_get_finish(result.get(), nullptr));
    // By default, GLib ends the process when the session bus disappears.
    if (connection_) g_dbus_connection_set_exit_on_close(connection_.get(), FALSE);
    return connection_ != nullptr;
}

std::string SecretServiceBus::owner()
{
    const auto reply = call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner",
        g_variant_new("(s)", serviceName), "(s)");
    if (!reply) return {};
    const char* owner = nullptr;
    g_variant_get(reply.get(), "(&s)", &owner);
    return owner;
}

VariantPointer SecretServiceBus::call(
    const std::string& path, const char* interface, const char* method, GVariant* arguments, const char* replyType)
{
    return call(serviceName, path, interface, method, arguments, replyType);
}

void SecretServiceBus::tell(const std::string& path, const char* interface, const char* method)
{
    g_dbus_connection_call(connection_.get(), serviceName, path.c_str(), interface, method, nullptr, nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr, nullptr, nullptr);
}

void SecretServiceBus::restartDeadline(std::chrono::milliseconds patience)
{
    deadline_ = std::chrono::steady_clock::now() + patience;
}

VariantPointer SecretServiceBus::call(const char* destination, const std::string& path, const char* interface,
    const char* method, GVariant* arguments, const char* replyType)
{
    const auto result
        = loop_.await(deadline_, [&](GCancellable* cancellable, GAsyncReadyCallback ready, gpointer data) {
              constexpr int onlyTheDeadlineCounts = std::numeric_limits<int>::max();
              g_dbus_connection_call(connection_.get(), destination, path.c_str(), interface, method, arguments,
                  G_VARIANT_TYPE(replyType), G_DBUS_CALL_FLAGS_NONE, onlyTheDeadlineCounts, cancellable, ready, data);
          });
    return VariantPointer(g_dbus_connection_call_finish(connection_.get(), result.get(), nullptr));
}

}  // namespace larkspan::adapters
