#include "adapters/secrets/SecretPrompt.h"

#include <utility>

namespace larkspan::adapters {

namespace {

constexpr auto promptInterface = "org.freedesktop.Secret.Prompt";

}  // namespace

SecretPrompt::SecretPrompt(SecretServiceBus& bus, std::string path)
    : bus_(bus)
    , path_(std::move(path))
{
}

std::optional<VariantPointer> SecretPrompt::run()
{
    Progress progress;
    const auto onCompleted = [](GDBusConnection*, const char*, const char*, const char*, const char*,
                                 GVariant* parameters, gpointer data) {
        auto& end = *static_cast<Progress*>(data);
        if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(bv)")) == FALSE) return;
        gboolean isDismissed = TRUE;
        GVariant* result = nullptr;
        g_variant_get(parameters, "(bv)", &isDismissed, &result);
        end.hasCompleted = true;
        end.isDismissed = isDismissed != FALSE;
        end.result.reset(result);
    };
    const auto onVanished
        = [](GDBusConnection*, const char*, gpointer data) { static_cast<Progress*>(data)->isServiceLost = true; };

    const auto subscription
        = g_dbus_connection_signal_subscribe(bus_.connection(), SecretServiceBus::serviceName, promptInterface,
            "Completed", path_.c_str(), nullptr, G_DBUS_SIGNAL_FLAGS_NONE, onCompleted, &progress, nullptr);
    const auto watch = g_bus_watch_name_on_connection(bus_.connection(), SecretServiceBus::serviceName,
        G_BUS_NAME_WATCHER_FLAGS_NONE, nullptr, onVanished, &progress, nullptr);
    if (raise()) awaitEnd(progress);
    g_bus_unwatch_name(watch);
    g_dbus_connection_signal_unsubscribe(bus_.connection(), subscription);

    bus_.restartDeadline();
    if (!progress.hasCompleted || progress.isDismissed) return std::nullopt;
    return std::move(progress.result);
}

void SecretPrompt::dismiss()
{
    bus_.tell(path_, promptInterface, "Dismiss");
}

bool SecretPrompt::raise()
{
    constexpr auto noParentWindow = "";
    return bus_.call(path_, promptInterface, "Prompt", g_variant_new("(s)", noParentWindow), "()") != nullptr;
}

void SecretPrompt::awaitEnd(const Progress& progress)
{
    const auto hasEnded = [&progress] { return progress.hasCompleted || progress.isServiceLost; };
    while (!hasEnded()) {
        const auto nextLook = std::chrono::steady_clock::now() + bus_.patience();
        if (bus_.loop().turnUntil(nextLook, hasEnded)) return;
        if (bus_.loop().isStopped() || !serviceAnswers()) return;
    }
}

bool SecretPrompt::serviceAnswers()
{
    bus_.restartDeadline();
    return bus_.call("/", "org.freedesktop.DBus.Peer", "Ping", nullptr, "()") != nullptr;
}

}  // namespace larkspan::adapters
