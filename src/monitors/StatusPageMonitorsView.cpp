#include "monitors/StatusPageMonitorsView.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace larkspan::monitors {

using model::Monitor;
using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

StatusPageMonitorsView::StatusPageMonitorsView(Ports ports, model::StatusPage opened)
    : page(std::move(opened))
    , viewModel(std::make_shared<StatusPageMonitorsViewModel>(ports.main, ports.monitors, page.id))
    , ports_(ports)
{
}

std::array<support::Subscription, 2> StatusPageMonitorsView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), viewModel->objectWillChange(observer)};
}

void StatusPageMonitorsView::refresh()
{
    ports_.credentials.allowPromptAgain();
    viewModel->loadMonitors();
}

Placeholder StatusPageMonitorsView::placeholder() const
{
    switch (content()) {
    case Content::loading: return presentation::loadingPlaceholder("Loading Monitors...");
    case Content::failure:
        return presentation::failurePlaceholder(
            {.symbol = "exclamationmark.triangle", .tone = Tone::yellow, .offersRetry = true}, *viewModel->error);
    case Content::empty:
        return {.symbol = "antenna.radiowaves.left.and.right",
            .title = "No Monitors",
            .text = "No monitors configured for this status page."};
    case Content::records: break;
    }
    return {};
}

std::vector<MonitorRow> StatusPageMonitorsView::rows() const
{
    std::vector<MonitorRow> rows;
    rows.reserve(viewModel->monitors->size());
    std::ranges::transform(*viewModel->monitors, std::back_inserter(rows), [this](const Monitor& monitor) {
        const auto view = rowViews_->find(monitor.id);
        return MonitorRow::of(monitor, view == rowViews_->end() ? nullptr : view->second.get(),
            viewModel->performingActions->contains(monitor.id));
    });
    return rows;
}

const StatusPageMonitorsView::RowViews& StatusPageMonitorsView::rowViews()
{
    std::set<std::string_view> listed;
    for (const auto& monitor : *viewModel->monitors) listed.insert(monitor.id);
    const auto hasLeft = [&listed](const auto& row) { return !listed.contains(row.first); };
    if (std::ranges::any_of(*rowViews_, hasLeft)) {
        auto kept = *rowViews_;
        std::erase_if(kept, hasLeft);
        rowViews_ = std::move(kept);
    }
    return *rowViews_;
}

void StatusPageMonitorsView::toggleMetrics(const std::string& id)
{
    if (!monitorOf(id)) return;
    if (!rowViews_->contains(id)) {
        auto views = *rowViews_;
        const MonitorRowView::Ports ports{ports_.main, ports_.monitors, ports_.locale};
        views.emplace(id, std::make_shared<MonitorRowView>(ports, id));
        rowViews_ = std::move(views);
    }
    rowViews_->find(id)->second->toggleMetrics();
}

void StatusPageMonitorsView::press(const std::string& id, std::string_view button)
{
    const auto* const monitor = monitorOf(id);
    if (!monitor || viewModel->performingActions->contains(id)) return;
    if (button == MonitorRow::pauseResume) support::start(ports_.main, viewModel->togglePause(*monitor));
    if (button == MonitorRow::checkNow) support::start(ports_.main, viewModel->checkMonitor(*monitor));
}

std::string StatusPageMonitorsView::alert() const
{
    return *viewModel->showErrorAlert ? viewModel->errorMessage->value_or("") : "";
}

void StatusPageMonitorsView::openMonitor(const std::string& id)
{
    const auto* const opened = monitorOf(id);
    if (!opened) return;
    const MonitorDetailView::Ports ports{ports_.main, ports_.monitors, ports_.locale, ports_.links};
    const auto view = weak_from_this();
    MonitorDetailView::Owner owner{.onUpdate = [view](const Monitor& refreshed) {
        if (const auto self = view.lock()) self->viewModel->replace(refreshed);
    }};
    detail_ = std::make_shared<MonitorDetailView>(ports, *opened, std::move(owner));
    presentedMonitor = *opened;
}

void StatusPageMonitorsView::closeMonitor()
{
    if (!*presentedMonitor) return;
    presentedMonitor = std::nullopt;
    detail_.reset();
}

const Monitor* StatusPageMonitorsView::monitorOf(const std::string& id) const
{
    const auto& monitors = *viewModel->monitors;
    const auto found = std::ranges::find(monitors, id, &Monitor::id);
    return found == monitors.end() ? nullptr : &*found;
}

}  // namespace larkspan::monitors
