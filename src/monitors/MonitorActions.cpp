#include "monitors/MonitorActions.h"

#include <utility>

namespace larkspan::monitors {

using model::Monitor;
using support::Task;

MonitorActions::MonitorActions(api::MonitorEndpoints& api)
    : api_(api)
{
}

std::shared_ptr<const void> MonitorActions::mark(const std::string& id)
{
    auto marked = *running;
    marked.insert(id);
    running = std::move(marked);
    const auto unmark = [self = shared_from_this(), id](const void*) {
        auto left = *self->running;
        left.erase(id);
        self->running = std::move(left);
    };
    return {this, unmark};
}

Task<void> MonitorActions::order(MonitorAction action, Monitor monitor) const
{
    if (action == MonitorAction::checkNow) return api_.runMonitor(monitor.id);
    return monitor.isPaused ? api_.resumeMonitor(monitor.id) : api_.pauseMonitor(monitor.id);
}

Task<MonitorActions::Refetched> MonitorActions::perform(
    std::shared_ptr<MonitorActions> self, MonitorAction action, Monitor monitor)
{
    auto ordering = self->order(action, monitor);
    co_await std::move(ordering);
    Refetched refetched;
    try {
        auto fetching = self->api_.fetchMonitors();
        refetched.monitors = co_await std::move(fetching);
    } catch (...) {
        refetched.failure = std::current_exception();
    }
    co_return refetched;
}

}  // namespace larkspan::monitors
