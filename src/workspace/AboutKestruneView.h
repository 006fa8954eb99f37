#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/LinkOpener.h"
#include "presentation/shapes/Link.h"

namespace larkspan::workspace {

/// The about box: the program, its build, and addresses to read more. Main thread only.
class AboutKestruneView {
public:
    /// The description of the build; an empty version counts as none.
    struct Bundle {
        std::string shortVersion;
        std::string buildNumber;
        std::string websiteAddress;
        std::string communityAddress;
        std::string organisationAddress;
    };

    static constexpr std::string_view title = "Kestrune";
    static constexpr std::string_view text = "A focused companion for monitoring your Kestrune status pages.";

    AboutKestruneView(const Bundle& bundle, platform::LinkOpener& links);

    const std::string& version() const { return version_; }
    const std::string& build() const { return build_; }

    /// The version, such as "Version 1.0 (1)".
    std::string versionText() const { return "Version " + version_ + " (" + build_ + ")"; }

    const std::array<presentation::Link, 3>& links() const { return links_; }

    /// Opens the destination of one of the links in the user's browser.
    void open(const presentation::Link& link) const { opener_.open(link.destination); }

private:
    platform::LinkOpener& opener_;
    std::string version_;
    std::string build_;
    std::array<presentation::Link, 3> links_;
};

}  // namespace larkspan::workspace
