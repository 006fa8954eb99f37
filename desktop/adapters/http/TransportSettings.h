#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "adapters/http/ProxySettings.h"
#include "adapters/http/TlsPolicy.h"

namespace larkspan::adapters {

/// The largest body that the program accepts, in bytes.
inline constexpr std::size_t largestAcceptedBody = 32 * 1024 * 1024;

/// The limits and the trust of a transport; the defaults are the program's.
struct TransportSettings {
    /// The file of the only authorities that are trusted.
    std::string certificateBundle = systemCertificateBundle();

    /// How long a request may go without a byte sent or received. The time for the whole request is set in the request.
    std::chrono::milliseconds idleTimeout = std::chrono::seconds(30);

    /// The largest size of a body after decompression, in bytes.
    std::size_t largestBody = largestAcceptedBody;

    /// How long a read waits for the connection that another one uses before it gets a new one.
    std::chrono::milliseconds patience{500};

    /// Asked if the environment names no proxy. Must outlive the transport; may answer after the transport has stopped.
    ProxySettings* proxies = nullptr;
};

}  // namespace larkspan::adapters
