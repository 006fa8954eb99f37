#pragma once

#include <string>

#include "support/UniqueFunction.h"

namespace larkspan::platform {

/// What a look for updates found.
struct UpdateCheck {
    enum class Finding {
        upToDate,
        updateAvailable,
        /// This copy of the program did not come from a package, so nobody knows of newer ones.
        notPackaged,
        /// There is no service here that knows packages.
        noPackageService,
        failed,
    };

    Finding finding = Finding::failed;
    /// Empty where unknown; the second stands with `updateAvailable` only.
    std::string installedVersion = {};
    std::string availableVersion = {};

    bool operator==(const UpdateCheck&) const = default;
};

/// The way in which this desktop's programs are kept up to date. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Looks for a newer version of the program and calls `complete` once, later; it installs nothing.
    virtual void check(support::UniqueFunction<void(UpdateCheck)> complete) = 0;
};

}  // namespace larkspan::platform
