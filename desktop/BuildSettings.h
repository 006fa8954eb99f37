#pragma once

namespace larkspan {

/// What is fixed when the program is built.
struct BuildSettings {
    /// The service's host, as host or host:port.
    static constexpr auto serviceHost = LARKSPAN_SERVICE_HOST;
};

}  // namespace larkspan
