#pragma once

#include <chrono>
#include <string>

#include "adapters/secrets/GLibLoop.h"

namespace larkspan::adapters {

/// Calls to the Secret Service on the session bus, made inside an entry of its loop. The calls since the last restart
/// of the deadline share it, so that many late answers cannot add up. One thread at a time.
class SecretServiceBus {
public:
    static constexpr auto serviceName = "org.freedesktop.secrets";

    /// Every call ends when `stop` is requested.
    SecretServiceBus(const GLibStop& stop, std::chrono::milliseconds patience);

    /// Returns the answer; empty if it is an error or does not come in time. Takes ownership of `arguments`, which may
    /// be floating.
    VariantPointer call(
        const std::string& path, const char* interface, const char* method, GVariant* arguments, const char* replyType);

    /// Calls without waiting for an answer.
    void tell(const std::string& path, const char* interface, const char* method);

    /// Sets the deadline to `patience` from now.
    void restartDeadline() { restartDeadline(patience_); }
    void restartDeadline(std::chrono::milliseconds patience);

    /// Connects to the bus if necessary; returns whether it is connected.
    bool connect();

    /// The current owner of the service's name; empty if it has none.
    std::string owner();

    GDBusConnection* connection() const { return connection_.get(); }
    GLibLoop& loop() { return loop_; }
    GLibLoop::Deadline deadline() const { return deadline_; }
    std::chrono::milliseconds patience() const { return patience_; }

private:
    VariantPointer call(const char* destination, const std::string& path, const char* interface, const char* method,
        GVariant* arguments, const char* replyType);

    GLibLoop loop_;
    std::chrono::milliseconds patience_;
    GLibLoop::Deadline deadline_;
    ObjectPointer<GDBusConnection> connection_;
};

}  // namespace larkspan::adapters
