#pragma once

#include <string>

#include "support/UniqueFunction.h"

namespace larkspan::platform {

/// The result of a check for updates.
struct UpdateCheck {
    enum class Finding {
        upToDate,
        updateAvailable,
        /// This copy of the program is not from a package, so newer versions are unknown.
        notPackaged,
        /// This system has no service that knows packages.
        noPackageService,
        failed,
    };

    Finding finding = Finding::failed;
    /// Empty if unknown; `availableVersion` is set with `updateAvailable` only.
    std::string installedVersion = {};
    std::string availableVersion = {};

    bool operator==(const UpdateCheck&) const = default;
};

/// Checks for updates in the way that this desktop updates its programs. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Looks for a newer version of the program and calls `complete` once, asynchronously; installs nothing.
    virtual void check(support::UniqueFunction<void(UpdateCheck)> complete) = 0;
};

}  // namespace larkspan::platform
