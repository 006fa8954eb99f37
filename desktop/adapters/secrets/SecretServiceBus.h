#pragma once

#include <chrono>
#include <string>

#include "adapters/secrets/GLibLoop.h"

namespace larkspan::adapters {

/// Calls to the Secret Service on the session bus. All calls of one object share one deadline, so that a service that
/// answers each of them late ends in time too. One thread only.
class SecretServiceBus {
public:
    static constexpr auto serviceName = "org.freedesktop.secrets";

    /// The deadline is `patience` from now; everything ends when `stop` is requested.
    SecretServiceBus(const GLibStop& stop, std::chrono::milliseconds patience);

    /// The answer; empty if there is none in time or it is an error. Takes `arguments`, which may be floating.
    VariantPointer call(
        const std::string& path, const char* interface, const char* method, GVariant* arguments, const char* replyType);

    /// Calls without waiting for an answer.
    void tell(const std::string& path, const char* interface, const char* method);

    /// The deadline begins anew: what came before was the user's time.
    void restartDeadline();

    bool isConnected() const { return connection_ != nullptr; }
    GDBusConnection* connection() const { return connection_.get(); }
    GLibLoop& loop() { return loop_; }
    GLibLoop::Deadline deadline() const { return deadline_; }
    std::chrono::milliseconds patience() const { return patience_; }

private:
    void connect();

    GLibLoop loop_;
    std::chrono::milliseconds patience_;
    GLibLoop::Deadline deadline_;
    ObjectPointer<GDBusConnection> connection_;
};

}  // namespace larkspan::adapters
