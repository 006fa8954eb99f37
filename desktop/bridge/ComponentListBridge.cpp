#include "bridge/ComponentListBridge.h"

#include <utility>

namespace larkspan::bridge {

ComponentListBridge::ComponentListBridge(
    std::shared_ptr<components::StatusPageComponentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
    , updates_(updates)
{
    followChangesOf(*view_);
    ComponentListBridge::readState();
}

void ComponentListBridge::readState()
{
    placeholder_ = PlaceholderValue::of(view_->placeholder());
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates_);
}

}  // namespace larkspan::bridge
