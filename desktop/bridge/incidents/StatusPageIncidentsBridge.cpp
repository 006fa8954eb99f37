#include "bridge/incidents/StatusPageIncidentsBridge.h"

#include <utility>

namespace larkspan::bridge {

StatusPageIncidentsBridge::StatusPageIncidentsBridge(
    std::shared_ptr<incidents::StatusPageIncidentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
{
    StatusPageIncidentsBridge::readState();
}

void StatusPageIncidentsBridge::readState()
{
    ListBridge::readState();
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates());
    form_.follow(view_->form(), updates());
}

}  // namespace larkspan::bridge
