#pragma once

namespace larkspan {

/// The settings that are fixed when the program is built.
struct BuildSettings {
    /// The service's host, as host or host:port.
    static constexpr auto serviceHost = LARKSPAN_SERVICE_HOST;

    static constexpr auto version = LARKSPAN_VERSION;
    static constexpr auto buildNumber = LARKSPAN_BUILD_NUMBER;
    static constexpr auto versionAndBuild = LARKSPAN_VERSION " (" LARKSPAN_BUILD_NUMBER ")";

    /// The addresses in the about box.
    static constexpr auto websiteAddress = LARKSPAN_WEBSITE;
    static constexpr auto communityAddress = LARKSPAN_COMMUNITY;
    static constexpr auto organisationAddress = LARKSPAN_ORGANISATION;
};

}  // namespace larkspan
