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

/// The monitors of one page, and their actions in the list. Actions on several monitors run concurrently; the row of a
/// monitor disables its buttons while one runs.
class StatusPageMonitorsViewModel final : public presentation::FetchedList<model::Monitor> {
public:
    StatusPageMonitorsViewModel(platform::Executor& main, api::MonitorEndpoints& api, std::string page);

    const std::string pageId;

    /// The monitors of the page only, in the service's order.
    presentation::RecordList<model::Monitor>& monitors = records;
    const std::shared_ptr<MonitorActions> actions;
    /// The ids of the monitors with an action running.
    support::Published<std::set<std::string>>& performingActions = actions->running;

    /// Tells of the actions that were refused.
    presentation::FailureAlert alert{*this};
    support::Published<bool>& showErrorAlert = alert.isUp;
    support::Published<std::optional<std::string>>& errorMessage = alert.text;

    void loadMonitors() { load(); }

    /// Pauses the monitor or, if its record says that it is paused, resumes it; then fetches its row again. Never
    /// throws; a failure of the second step is not reported, and the row does not change. The monitor is marked from
    /// the call on, so that a second press in the same turn finds it busy.
    support::Task<void> togglePause(model::Monitor monitor);
    /// Starts a check, then fetches the monitor's row again at once, which may be before the check has ended.
    support::Task<void> checkMonitor(model::Monitor monitor);

private:
    support::Task<void> perform(MonitorAction action, model::Monitor monitor);
    static support::Task<void> carryOut(std::shared_ptr<StatusPageMonitorsViewModel> self, MonitorAction action,
        model::Monitor monitor, std::shared_ptr<const void> mark);
    void refreshRow(const std::vector<model::Monitor>& fetched, const std::string& id);
};

}  // namespace larkspan::monitors
