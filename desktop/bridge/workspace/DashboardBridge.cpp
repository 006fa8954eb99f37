#include "bridge/workspace/DashboardBridge.h"

#include <utility>

namespace larkspan::bridge {

DashboardBridge::DashboardBridge(
    std::shared_ptr<workspace::DashboardView> dashboard, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , dashboard_(std::move(dashboard))
    , updates_(updates)
{
    followChangesOf(*dashboard_);
    DashboardBridge::readState();
}

void DashboardBridge::readState()
{
    placeholder_ = PlaceholderValue::of(dashboard_->placeholder());
    headline_ = HeadlineValue::of(dashboard_->headline());
    status_ = MarkerValue::of(dashboard_->status());
    rows_.update(dashboard_->rows());
    settings_.follow(dashboard_->settings(), updates_);
    openedPage_.follow(*dashboard_->openedPage, updates_);
}

int DashboardBridge::selectedRow() const
{
    const auto row = dashboard_->selectedRow();
    return row ? static_cast<int>(*row) : -1;
}

QList<QString> DashboardBridge::refreshIntervalLabels() const
{
    QList<QString> labels;
    for (const auto interval : workspace::DashboardView::refreshIntervals) {
        labels << QString::fromStdString(workspace::refreshIntervalLabel(interval));
    }
    return labels;
}

void DashboardBridge::chooseRefreshInterval(int choice)
{
    dashboard_->chooseRefreshInterval(workspace::DashboardView::refreshIntervals.at(static_cast<std::size_t>(choice)));
}

}  // namespace larkspan::bridge
