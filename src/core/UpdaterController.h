#pragma once

#include <memory>
#include <optional>

#include "platform/Updater.h"
#include "support/Observable.h"

namespace larkspan::core {

/// The user's checks for updates, one at a time, and the result of the last one. Main thread only.
class UpdaterController final : public support::Observable, public std::enable_shared_from_this<UpdaterController> {
public:
    explicit UpdaterController(platform::Updater& updater)
        : updater_(updater)
    {
    }

    /// Whether the dialog is shown: with the running check, then with its result, until the user dismisses it.
    support::Published<bool> isShowing{*this, false};
    /// The result; absent while the check runs.
    support::Published<std::optional<platform::UpdateCheck>> finding{*this};

    /// Shows the dialog and starts a check, unless one is running.
    void checkForUpdates();
    void dismiss() { isShowing = false; }

private:
    platform::Updater& updater_;
    bool isChecking_ = false;
};

}  // namespace larkspan::core
