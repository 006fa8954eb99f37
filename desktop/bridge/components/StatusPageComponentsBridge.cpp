#include "bridge/components/StatusPageComponentsBridge.h"

#include <utility>

namespace larkspan::bridge {

StatusPageComponentsBridge::StatusPageComponentsBridge(
    std::shared_ptr<components::StatusPageComponentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
{
    StatusPageComponentsBridge::readState();
}

void StatusPageComponentsBridge::readState()
{
    ListBridge::readState();
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates());
}

}  // namespace larkspan::bridge
