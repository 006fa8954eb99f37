#include "monitors/StatusPageMonitorsViewModel.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "presentation/screens/RecordsOfPage.h"
#include "support/LocalizedError.h"

namespace larkspan::monitors {

using model::Monitor;
using support::Task;

StatusPageMonitorsViewModel::StatusPageMonitorsViewModel(
    platform::Executor& main, api::MonitorEndpoints& api, std::string page)
    : FetchedList(main, [&api, page] { return presentation::recordsOfPage(api.fetchMonitors(), page); })
    , pageId(std::move(page))
    , actions(std::make_shared<MonitorActions>(api))
{
}

Task<void> StatusPageMonitorsViewModel::togglePause(Monitor monitor)
{
    return perform(MonitorAction::pauseResume, std::move(monitor));
}

Task<void> StatusPageMonitorsViewModel::checkMonitor(Monitor monitor)
{
    return perform(MonitorAction::checkNow, std::move(monitor));
}

Task<void> StatusPageMonitorsViewModel::perform(MonitorAction action, Monitor monitor)
{
    auto mark = actions->mark(monitor.id);
    return carryOut(std::static_pointer_cast<StatusPageMonitorsViewModel>(shared_from_this()), action,
        std::move(monitor), std::move(mark));
}

Task<void> StatusPageMonitorsViewModel::carryOut(std::shared_ptr<StatusPageMonitorsViewModel> self,
    MonitorAction action, Monitor monitor, std::shared_ptr<const void> mark)
{
    try {
        auto performing = MonitorActions::perform(self->actions, action, monitor);
        const auto refetched = co_await std::move(performing);
        // Where the fetch has failed, the action itself succeeded: the row shows what is known until the next load.
        self->refreshRow(refetched.monitors, monitor.id);
    } catch (...) {
        self->alert.raise(support::localizedDescription(std::current_exception()));
    }
    mark.reset();
}

void StatusPageMonitorsViewModel::refreshRow(const std::vector<Monitor>& fetched, const std::string& id)
{
    const auto refreshed = std::ranges::find_if(
        fetched, [&](const Monitor& each) { return each.id == id && each.statusPageId == pageId; });
    if (refreshed != fetched.end()) monitors.replace(*refreshed);
}

}  // namespace larkspan::monitors
