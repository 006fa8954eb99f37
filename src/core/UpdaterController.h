#pragma once

#include <memory>
#include <optional>

#include "platform/Updater.h"
#include "support/Observable.h"

namespace larkspan::core {

/// The user's questions for updates, one at a time, and what came of the last one. Main thread only.
class UpdaterController final : public support::Observable, public std::enable_shared_from_this<UpdaterController> {
public:
    explicit UpdaterController(platform::Updater& updater)
        : updater_(updater)
    {
    }

    /// The user is being told: of the check while it runs, then of its finding, until they dismiss it.
    support::Published<bool> isShowing{*this, false};
    /// Absent while the check runs.
    support::Published<std::optional<platform::UpdateCheck>> finding{*this};

    /// Asked again while it runs, it goes on with the check that runs.
    void checkForUpdates();
    void dismiss() { isShowing = false; }

private:
    platform::Updater& updater_;
    bool isChecking_ = false;
};

}  // namespace larkspan::core
