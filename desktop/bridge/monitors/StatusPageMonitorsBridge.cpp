#include "bridge/monitors/StatusPageMonitorsBridge.h"

#include <QQmlEngine>

#include <algorithm>
#include <utility>

#include "bridge/lists/RowListModel.h"
#include "bridge/monitors/MonitorDetailBridge.h"
#include "bridge/monitors/MonitorRowBridge.h"
#include "bridge/monitors/MonitorRowValue.h"

namespace larkspan::bridge {

StatusPageMonitorsBridge::StatusPageMonitorsBridge(
    std::shared_ptr<monitors::StatusPageMonitorsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
    , rows_(new RowListModel<MonitorRowValue>(this))
{
    StatusPageMonitorsBridge::readState();
}

ListModel* StatusPageMonitorsBridge::rows()
{
    return rows_;
}

void StatusPageMonitorsBridge::press(const QString& id, const QString& button)
{
    view_->press(id.toStdString(), button.toStdString());
}

MonitorRowBridge* StatusPageMonitorsBridge::metricsOf(const QString& id) const
{
    const auto row = openedRows_.find(id.toStdString());
    return row == openedRows_.end() ? nullptr : row->second.metrics.get();
}

void StatusPageMonitorsBridge::readState()
{
    ListBridge::readState();
    closeRowsThatLeft();
    followOpenedRows();
    rows_->update(view_->rows());
    detail_.follow(view_->detail(), updates());
}

void StatusPageMonitorsBridge::closeRowsThatLeft()
{
    const auto hasLeft
        = [this](const monitors::MonitorRow& row) { return row.isOpen && !view_->rowViews().contains(row.id); };
    if (std::ranges::none_of(rows_->rows(), hasLeft)) return;
    auto rows = rows_->rows();
    for (auto& row : rows) row.isOpen = row.isOpen && !hasLeft(row);
    rows_->update(std::move(rows));
}

void StatusPageMonitorsBridge::followOpenedRows()
{
    const auto& rowViews = view_->rowViews();
    for (auto& [id, row] : openedRows_) {
        if (!rowViews.contains(id)) row.metrics.follow(nullptr, updates());
    }
    std::erase_if(openedRows_, [&rowViews](const auto& row) { return !rowViews.contains(row.first); });
    for (const auto& [id, rowView] : rowViews) {
        auto& row = openedRows_[id];
        if (!row.metrics.follow(rowView, updates())) continue;
        // Otherwise QML would own an object that a method returns.
        QQmlEngine::setObjectOwnership(row.metrics.get(), QQmlEngine::CppOwnership);
        row.changes = rowView->objectWillChange(observer());
    }
}

}  // namespace larkspan::bridge
