#include "bridge/incidents/StatusPageIncidentsBridge.h"

#include <utility>

#include "bridge/incidents/CreateIncidentBridge.h"
#include "bridge/incidents/IncidentDetailBridge.h"
#include "bridge/incidents/IncidentRowValue.h"
#include "bridge/lists/RowListModel.h"

namespace larkspan::bridge {

StatusPageIncidentsBridge::StatusPageIncidentsBridge(
    std::shared_ptr<incidents::StatusPageIncidentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
    , rows_(new RowListModel<IncidentRowValue>(this))
{
    StatusPageIncidentsBridge::readState();
}

ListModel* StatusPageIncidentsBridge::rows()
{
    return rows_;
}

void StatusPageIncidentsBridge::readState()
{
    ListBridge::readState();
    rows_->update(view_->rows());
    detail_.follow(view_->detail(), updates());
    form_.follow(view_->form(), updates());
}

}  // namespace larkspan::bridge
