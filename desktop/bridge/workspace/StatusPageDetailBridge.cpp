#include "bridge/workspace/StatusPageDetailBridge.h"

#include <utility>

#include "bridge/components/StatusPageComponentsBridge.h"
#include "bridge/incidents/StatusPageIncidentsBridge.h"
#include "bridge/lists/RowListModel.h"
#include "bridge/lists/ValueList.h"
#include "bridge/maintenances/StatusPageMaintenancesBridge.h"
#include "bridge/monitors/StatusPageMonitorsBridge.h"
#include "bridge/workspace/ActivityRowValue.h"

namespace larkspan::bridge {

using workspace::StatusPageDetailView;

StatusPageDetailBridge::StatusPageDetailBridge(
    std::shared_ptr<StatusPageDetailView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
    , updates_(updates)
    , activity_(new RowListModel<ActivityRowValue>(this))
{
    followChangesOf(*view_);
    StatusPageDetailBridge::readState();
}

ListModel* StatusPageDetailBridge::activity()
{
    return activity_;
}

QList<QString> StatusPageDetailBridge::tabs() const
{
    QList<QString> labels;
    for (const auto tab : StatusPageDetailView::tabs) labels << words(workspace::rawValue(tab));
    return labels;
}

void StatusPageDetailBridge::select(int tab)
{
    view_->select(StatusPageDetailView::tabs.at(static_cast<std::size_t>(tab)));
}

void StatusPageDetailBridge::readState()
{
    auto overview = view_->overview();
    status_ = HeadlineValue::of(overview.status);
    information_ = valuesOf<FactValue>(overview.information);
    activity_->update(std::move(overview.activity));
    quiet_ = MarkerValue::of(overview.quiet);
    about_ = words(overview.about);
    uptime_ = valuesOf<FactValue>(overview.uptime);
    moreUptime_ = words(overview.moreUptime);
    incidents_.follow(view_->incidents(), updates_);
    monitors_.follow(view_->monitors(), updates_);
    components_.follow(view_->components(), updates_);
    maintenances_.follow(view_->maintenances(), updates_);
}

}  // namespace larkspan::bridge
