#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "api/MonitorEndpoints.h"
#include "model/records/Monitor.h"
#include "monitors/MonitorActions.h"
#include "presentation/screens/FailureAlert.h"
#include "presentation/screens/FetchedList.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::monitors {

/// The monitors of one page, and what can be done to each of them from the list. Actions on several monitors run beside
/// each other; those on one are kept apart by its row, which disables its buttons meanwhile.
class StatusPageMonitorsViewModel final : public presentation::FetchedList<model::Monitor> {
public:
    StatusPageMonitorsViewModel(platform::Executor& main, api::MonitorEndpoints& api, std::string page);

    const std::string pageId;

    /// Those of the page alone, in the order in which the service gave the account's.
    presentation::RecordList<model::Monitor>& monitors = records;
    const std::shared_ptr<MonitorActions> actions;
    /// The ids of the monitors with an action running.
    support::Published<std::set<std::string>>& performingActions = actions->running;

    /// Tells of the actions that were refused.
    presentation::FailureAlert alert{*this};
    support::Published<bool>& showErrorAlert = alert.isUp;
    support::Published<std::optional<std::string>>& errorMessage = alert.text;

    void loadMonitors() { load(); }

    /// Pauses the monitor or, if that record says that it is paused, resumes it; then fetches its row anew. It never
    /// throws, and a failure of the second step is told to nobody: the row stays as it was. The monitor is marked from
    /// the call on, so that a second press in the same turn finds it busy.
    support::Task<void> togglePause(model::Monitor monitor);
    /// Asks for a check, then fetches the monitor's row anew at once, which may be before the check has ended.
    support::Task<void> checkMonitor(model::Monitor monitor);

private:
    support::Task<void> perform(MonitorAction action, model::Monitor monitor);
    static support::Task<void> carryOut(std::shared_ptr<StatusPageMonitorsViewModel> self, MonitorAction action,
        model::Monitor monitor, std::shared_ptr<const void> mark);
    void refreshRow(const std::vector<model::Monitor>& fetched, const std::string& id);
};

}  // namespace larkspan::monitors
