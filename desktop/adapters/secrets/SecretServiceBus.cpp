#include "adapters/secrets/SecretServiceBus.h"

#include <limits>

namespace larkspan::adapters {

SecretServiceBus::SecretServiceBus(const GLibStop& stop, std::chrono::milliseconds patience)
    : loop_(stop)
    , patience_(patience)
{
    restartDeadline();
    connect();
}

VariantPointer SecretServiceBus::call(
    const std::string& path, const char* interface, const char* method, GVariant* arguments, const char* replyType)
{
    const auto result
        = loop_.await(deadline_, [&](GCancellable* cancellable, GAsyncReadyCallback ready, gpointer data) {
              constexpr int onlyTheDeadlineCounts = std::numeric_limits<int>::max();
              g_dbus_connection_call(connection_.get(), serviceName, path.c_str(), interface, method, arguments,
                  replyType ? G_VARIANT_TYPE(replyType) : nullptr, G_DBUS_CALL_FLAGS_NONE, onlyTheDeadlineCounts,
                  cancellable, ready, data);
          });
    return VariantPointer(g_dbus_connection_call_finish(connection_.get(), result.get(), nullptr));
}

void SecretServiceBus::tell(const std::string& path, const char* interface, const char* method)
{
    g_dbus_connection_call(connection_.get(), serviceName, path.c_str(), interface, method, nullptr, nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr, nullptr, nullptr);
}

void SecretServiceBus::restartDeadline()
{
    deadline_ = std::chrono::steady_clock::now() + patience_;
}

void SecretServiceBus::connect()
{
    const auto result = loop_.await(deadline_, [](GCancellable* cancellable, GAsyncReadyCallback ready, gpointer data) {
        g_bus_get(G_BUS_TYPE_SESSION, cancellable, ready, data);
    });
    connection_.reset(g_bus_get_finish(result.get(), nullptr));
    // GLib's habit is to end the process when the session bus goes.
    if (connection_) g_dbus_connection_set_exit_on_close(connection_.get(), FALSE);
}

}  // namespace larkspan::adapters
