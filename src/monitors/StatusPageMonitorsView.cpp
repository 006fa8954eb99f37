#include "monitors/StatusPageMonitorsView.h"

#include <algorithm>
#include <utility>

#include "presentation/screens/RowsOf.h"
#include "support/WhileAlive.h"

namespace larkspan::monitors {

using model::Monitor;
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
    if (button == MonitorRow::pauseResume) support::start(ports_.main, viewModel->togglePause(*monitor));
    if (button == MonitorRow::checkNow) support::start(ports_.main, viewModel->checkMonitor(*monitor));
}

bool StatusPageMonitorsView::isHeld() const
{
    return !viewModel->performingActions->empty() || (detail() && *detail()->action->isInProgress);
}

std::string StatusPageMonitorsView::alert() const
{
    return *viewModel->showErrorAlert ? viewModel->errorMessage->value_or("") : "";
}

void StatusPageMonitorsView::openMonitor(const std::string& id)
{
    const auto* const opened = viewModel->monitors.find(id);
    if (!opened) return;
    const MonitorDetailView::Ports ports{ports_.main, ports_.api, ports_.locale, ports_.links};
    const auto view = weak_from_this();
    MonitorDetailView::Owner owner{.onUpdate = whileAlive(view,
                                       [](StatusPageMonitorsView& self, const Monitor& refreshed) {
                                           self.viewModel->monitors.replace(refreshed);
                                       }),
        .lookAgain = whileAlive(view, [](StatusPageMonitorsView& self) { self.viewModel->load(); })};
    presentedMonitor.open(*opened, std::make_shared<MonitorDetailView>(ports, *opened, std::move(owner)));
}

void StatusPageMonitorsView::closeMonitor()
{
    presentedMonitor.close();
}

}  // namespace larkspan::monitors
