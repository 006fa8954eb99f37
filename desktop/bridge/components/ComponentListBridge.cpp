#include "bridge/components/ComponentListBridge.h"

#include <utility>

namespace larkspan::bridge {

ComponentListBridge::ComponentListBridge(
    std::shared_ptr<components::StatusPageComponentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
{
    ComponentListBridge::readState();
}

void ComponentListBridge::readState()
{
    ListBridge::readState();
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates());
}

}  // namespace larkspan::bridge
