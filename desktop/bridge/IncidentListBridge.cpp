#include "bridge/IncidentListBridge.h"

#include <utility>

namespace larkspan::bridge {

IncidentListBridge::IncidentListBridge(
    std::shared_ptr<incidents::StatusPageIncidentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
    , updates_(updates)
{
    followChangesOf(*view_);
    IncidentListBridge::readState();
}

void IncidentListBridge::readState()
{
    placeholder_ = PlaceholderValue::of(view_->placeholder());
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates_);
    form_.follow(view_->form(), updates_);
}

}  // namespace larkspan::bridge
