#pragma once

namespace larkspan {

/// What is fixed when the program is built.
struct BuildSettings {
    /// The service's host, as host or host:port.
    static constexpr auto serviceHost = LARKSPAN_SERVICE_HOST;

    static constexpr auto version = LARKSPAN_VERSION;
    static constexpr auto buildNumber = LARKSPAN_BUILD_NUMBER;

    /// Where the about box leads.
    static constexpr auto websiteAddress = LARKSPAN_WEBSITE;
    static constexpr auto communityAddress = LARKSPAN_COMMUNITY;
    static constexpr auto organisationAddress = LARKSPAN_ORGANISATION;
};

}  // namespace larkspan
