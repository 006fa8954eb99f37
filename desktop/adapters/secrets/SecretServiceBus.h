#pragma once

#include <chrono>
#include <string>

#include "adapters/secrets/GLibLoop.h"

namespace larkspan::adapters {

/// Calls to the Secret Service on the session bus, made inside of an entry of its loop. The calls since the last
/// restart of the deadline share it, so that a service that answers each of them late ends in time too. One thread at a
/// time.
class SecretServiceBus {
public:
    static constexpr auto serviceName = "org.freedesktop.secrets";

    /// Everything ends when `stop` is requested.
    SecretServiceBus(const GLibStop& stop, std::chrono::milliseconds patience);

    /// The answer; empty if there is none in time or it is an error. Takes `arguments`, which may be floating.
    VariantPointer call(
        const std::string& path, const char* interface, const char* method, GVariant* arguments, const char* replyType);

    /// Calls without waiting for an answer.
    void tell(const std::string& path, const char* interface, const char* method);

    /// The deadline is `patience` from now.
    void restartDeadline() { restartDeadline(patience_); }
    void restartDeadline(std::chrono::milliseconds patience);

    /// Connects if the bus isn't connected; says whether it is now.
    bool connect();

    /// Who owns the service's name at the moment; empty if nobody does.
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
