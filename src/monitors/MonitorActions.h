#pragma once

#include <exception>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "api/MonitorEndpoints.h"
#include "model/records/Monitor.h"
#include "monitors/MonitorAction.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::monitors {

/// The actions on the monitors of a page, and on which of them one runs. Main thread only; a running action outlives
/// the screen that began it.
class MonitorActions final : public support::Observable, public std::enable_shared_from_this<MonitorActions> {
public:
    explicit MonitorActions(api::MonitorEndpoints& api);

    /// The ids of the monitors with an action running.
    support::Published<std::set<std::string>> running{*this};
    bool isRunning(const std::string& id) const { return running->contains(id); }

    /// The monitor of that id counts as running for as long as the result lives.
    [[nodiscard]] std::shared_ptr<const void> mark(const std::string& id);

    /// What the service says after an action that succeeded.
    struct Refetched {
        /// The monitors of the account.
        std::vector<model::Monitor> monitors;
        /// Why they are not known; null if they are.
        std::exception_ptr failure;
    };

    /// Pauses a monitor or, if that record says that it is paused, resumes it; or asks for a check. Then fetches the
    /// monitors at once, which may be before a check has ended. Throws the failure of the action itself.
    static support::Task<Refetched> perform(
        std::shared_ptr<MonitorActions> self, MonitorAction action, model::Monitor monitor);

private:
    support::Task<void> order(MonitorAction action, model::Monitor monitor) const;

    api::MonitorEndpoints& api_;
};

}  // namespace larkspan::monitors
