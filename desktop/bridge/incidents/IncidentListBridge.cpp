#include "bridge/incidents/IncidentListBridge.h"

#include <utility>

namespace larkspan::bridge {

IncidentListBridge::IncidentListBridge(
    std::shared_ptr<incidents::StatusPageIncidentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
{
    IncidentListBridge::readState();
}

void IncidentListBridge::readState()
{
    ListBridge::readState();
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates());
    form_.follow(view_->form(), updates());
}

}  // namespace larkspan::bridge
