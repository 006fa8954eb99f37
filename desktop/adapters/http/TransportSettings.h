#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "adapters/http/ProxySettings.h"
#include "adapters/http/TlsPolicy.h"

namespace larkspan::adapters {

/// In bytes, of a body that the program takes.
inline constexpr std::size_t largestBodyTaken = 16 * 1024 * 1024;

/// What a transport holds its requests to; the defaults are the program's.
struct TransportSettings {
    /// The authorities that vouch for the service, and no others.
    std::string certificateBundle = systemCertificateBundle();

    /// How long a request lives while no byte comes or goes. The time for the whole of it is the request's own.
    std::chrono::milliseconds idleTimeout = std::chrono::seconds(30);

    /// The most bytes that a body may have once it is unpacked.
    std::size_t largestBody = largestBodyTaken;

    /// How long a read waits for the connection of another one before it gets a connection of its own.
    std::chrono::milliseconds patience{500};

    /// Asked where the environment names no proxy. Outlives the transport; may answer after the transport has stopped.
    ProxySettings* proxies = nullptr;
};

}  // namespace larkspan::adapters
