#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>

#include "api/MonitorEndpoints.h"
#include "model/records/Monitor.h"
#include "presentation/screens/AlertSequence.h"
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
    /// The ids of the monitors with an action running.
    support::Published<std::set<std::string>> performingActions{*this};
    support::Published<bool> showErrorAlert{*this, false};
    /// The text of the alert; it stays when the alert has gone.
    support::Published<std::optional<std::string>> errorMessage{*this};

    void dismissAlert() { alerts_.dismiss(); }
    /// Tells the alerts apart, also two that say the same.
    int alertNumber() const { return alerts_.number(); }

    void loadMonitors() { load(); }

    /// Pauses the monitor or, if that record says that it is paused, resumes it; then fetches its row anew. It never
    /// throws, and a failure of the second step is told to nobody: the row stays as it was. The monitor is marked from
    /// the call on, so that a second press in the same turn finds it busy.
    support::Task<void> togglePause(model::Monitor monitor);
    /// Asks for a check, then fetches the monitor's row anew at once, which may be before the check has ended.
    support::Task<void> checkMonitor(model::Monitor monitor);

private:
    using Action = support::Task<void>;

    static Action perform(std::shared_ptr<StatusPageMonitorsViewModel> self, std::string id, Action action);
    static Action refreshMonitor(std::shared_ptr<StatusPageMonitorsViewModel> self, std::string id);
    std::shared_ptr<StatusPageMonitorsViewModel> self();
    void setPerforming(const std::string& id, bool isPerforming);

    void showAlert(std::optional<std::string> words);

    api::MonitorEndpoints& api_;
    presentation::AlertSequence alerts_;
};

}  // namespace larkspan::monitors
