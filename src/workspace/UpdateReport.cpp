#include "workspace/UpdateReport.h"

namespace larkspan::workspace {

using Finding = platform::UpdateCheck::Finding;

namespace {

std::string versioned(const std::string& version)
{
    return version.empty() ? "Kestrune" : "Kestrune " + version;
}

std::string availableText(const platform::UpdateCheck& check)
{
    const auto held = check.installedVersion.empty() ? "" : " You have " + check.installedVersion + ".";
    return versioned(check.availableVersion) + " is available." + held
        + " Install it the way you install your system’s other updates.";
}

}  // namespace

UpdateReport UpdateReport::of(const std::optional<platform::UpdateCheck>& finding)
{
    if (!finding) {
        return {.title = "Checking for Updates…", .text = {}, .showsProgress = true, .closeLabel = "Close"};
    }
    switch (finding->finding) {
    case Finding::upToDate:
        return {.title = "You’re Up to Date",
            .text = versioned(finding->installedVersion) + " is the newest version available."};
    case Finding::updateAvailable: return {.title = "Update Available", .text = availableText(*finding)};
    case Finding::notPackaged:
        return {.title = "Couldn’t Check for Updates",
            .text = "This copy of Kestrune wasn’t installed from a package, so there is nothing to compare it with."};
    case Finding::noPackageService:
        return {.title = "Couldn’t Check for Updates",
            .text = "There is no package service on this computer. Updates come with those of your distribution."};
    case Finding::failed: break;
    }
    return {
        .title = "Couldn’t Check for Updates", .text = "The package service gave no answer. Please try again later."};
}

}  // namespace larkspan::workspace
