#include "monitors/StatusPageMonitorsView.h"

#include <algorithm>
#include <utility>

#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRow.h"
#include "monitors/MonitorRowView.h"
#include "presentation/screens/RowsOf.h"
#include "support/WhileAlive.h"

namespace larkspan::monitors {

using model::Monitor;
using support::Task;
using support::whileAlive;

StatusPageMonitorsView::StatusPageMonitorsView(Ports ports, model::StatusPage opened)
    : ListScreen(ports.credentials,
          {.loading = "Loading Monitors...",
              .empty = {.symbol = "antenna.radiowaves.left.and.right",
                  .title = "No Monitors",
                  .text = "No monitors configured for this status page."}})
    , page(std::move(opened))
    , viewModel(std::make_shared<StatusPageMonitorsViewModel>(ports.main, ports.api, page.id))
    , ports_(ports)
    , loads_(ports.main, *viewModel, [this] { forgetRowsThatLeft(); })
{
}

std::vector<MonitorRow> StatusPageMonitorsView::rows() const
{
    return presentation::rowsOf(*viewModel->monitors, [this](const Monitor& monitor, const std::string& rowId) {
        const auto view = rowViews_->find(rowId);
        return MonitorRow::of(monitor, view == rowViews_->end() ? nullptr : view->second.get(),
            viewModel->performingActions->contains(monitor.id));
    });
}

void StatusPageMonitorsView::forgetRowsThatLeft()
{
    const auto& monitors = *viewModel->monitors;
    auto kept = *rowViews_;
    const auto left
        = std::erase_if(kept, [&monitors](const auto& row) { return !presentation::recordOfRow(monitors, row.first); });
    if (left > 0) rowViews_ = std::move(kept);
}

void StatusPageMonitorsView::toggleMetrics(const std::string& id)
{
    const auto* const monitor = viewModel->monitors.find(id);
    if (!monitor) return;
    if (!rowViews_->contains(id)) {
        auto views = *rowViews_;
        const MonitorRowView::Ports ports{ports_.main, ports_.api, ports_.locale};
        views.emplace(id, std::make_shared<MonitorRowView>(ports, monitor->id));
        rowViews_ = std::move(views);
    }
    rowViews_->find(id)->second->toggleMetrics();
}

void StatusPageMonitorsView::press(const std::string& id, std::string_view button)
{
    const auto* const monitor = viewModel->monitors.find(id);
    if (!monitor || viewModel->performingActions->contains(monitor->id)) return;
    if (button == pauseResumeButton) {
        support::start(ports_.main, perform(shared_from_this(), viewModel->togglePause(*monitor), monitor->id));
    }
    if (button == checkNowButton) {
        support::start(ports_.main, perform(shared_from_this(), viewModel->checkMonitor(*monitor), monitor->id));
    }
}

Task<void> StatusPageMonitorsView::perform(
    std::shared_ptr<StatusPageMonitorsView> self, Task<void> action, std::string monitorID)
{
    co_await std::move(action);
    // The monitor may have been opened meanwhile, as it was before the action.
    const auto& known = *self->viewModel->monitors;
    const auto row = std::ranges::find(known, monitorID, &Monitor::id);
    if (row != known.end() && self->presentedMonitor.isOf(monitorID)) self->detail()->show(*row);
}

support::Subscriptions StatusPageMonitorsView::observe(const std::function<void()>& observer)
{
    auto subscriptions = ListScreen::observe(observer);
    subscriptions.push_back(viewModel->actions->objectWillChange(observer));
    return subscriptions;
}

void StatusPageMonitorsView::openMonitor(const std::string& id)
{
    const auto* const opened = viewModel->monitors.find(id);
    if (!opened) return;
    MonitorDetailView::Ports ports{ports_.main, viewModel->actions, ports_.locale, ports_.links};
    const auto view = weak_from_this();
    MonitorDetailView::Owner owner{.onUpdate = whileAlive(view,
                                       [](StatusPageMonitorsView& self, const Monitor& refreshed) {
                                           self.viewModel->monitors.replace(refreshed);
                                       }),
        .reloadList = whileAlive(view, [](StatusPageMonitorsView& self) { self.viewModel->load(); })};
    presentedMonitor.open(std::make_shared<MonitorDetailView>(std::move(ports), *opened, std::move(owner)));
}

void StatusPageMonitorsView::closeMonitor()
{
    presentedMonitor.close();
}

}  // namespace larkspan::monitors
