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
    , api_(api)
    , alerts_([this](std::optional<std::string> words) { showAlert(std::move(words)); })
{
}

std::shared_ptr<StatusPageMonitorsViewModel> StatusPageMonitorsViewModel::self()
{
    return std::static_pointer_cast<StatusPageMonitorsViewModel>(shared_from_this());
}

Task<void> StatusPageMonitorsViewModel::togglePause(Monitor monitor)
{
    setPerforming(monitor.id, true);
    auto action = monitor.isPaused ? api_.resumeMonitor(monitor.id) : api_.pauseMonitor(monitor.id);
    return perform(self(), std::move(monitor.id), std::move(action));
}

Task<void> StatusPageMonitorsViewModel::checkMonitor(Monitor monitor)
{
    setPerforming(monitor.id, true);
    auto action = api_.runMonitor(monitor.id);
    return perform(self(), std::move(monitor.id), std::move(action));
}

void StatusPageMonitorsViewModel::showAlert(std::optional<std::string> words)
{
    const bool isUp = words.has_value();
    if (isUp) errorMessage = std::move(words);
    showErrorAlert = isUp;
}

Task<void> StatusPageMonitorsViewModel::perform(
    std::shared_ptr<StatusPageMonitorsViewModel> self, std::string id, Task<void> action)
{
    try {
        co_await std::move(action);
        auto refreshing = refreshMonitor(self, id);
        co_await std::move(refreshing);
    } catch (...) {
        self->alerts_.raise(support::localizedDescription(std::current_exception()));
    }
    self->setPerforming(id, false);
}

Task<void> StatusPageMonitorsViewModel::refreshMonitor(
    std::shared_ptr<StatusPageMonitorsViewModel> self, std::string id)
{
    std::vector<Monitor> fetched;
    try {
        auto fetching = presentation::recordsOfPage(self->api_.fetchMonitors(), self->pageId);
        fetched = co_await std::move(fetching);
    } catch (...) {
        // The action itself succeeded; the row shows what is known until the next load.
        co_return;
    }
    const auto refreshed = std::ranges::find(fetched, id, &Monitor::id);
    if (refreshed != fetched.end()) self->monitors.replace(std::move(*refreshed));
}

void StatusPageMonitorsViewModel::setPerforming(const std::string& id, bool isPerforming)
{
    auto performing = *performingActions;
    if (isPerforming)
        performing.insert(id);
    else
        performing.erase(id);
    performingActions = std::move(performing);
}

}  // namespace larkspan::monitors
