#include "bridge/components/StatusPageComponentsBridge.h"

#include <utility>

#include "bridge/components/ComponentDetailBridge.h"
#include "bridge/components/ComponentRowValue.h"
#include "bridge/lists/RowListModel.h"

namespace larkspan::bridge {

StatusPageComponentsBridge::StatusPageComponentsBridge(
    std::shared_ptr<components::StatusPageComponentsView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
    , rows_(new RowListModel<ComponentRowValue>(this))
{
    StatusPageComponentsBridge::readState();
}

ListModel* StatusPageComponentsBridge::rows()
{
    return rows_;
}

void StatusPageComponentsBridge::readState()
{
    ListBridge::readState();
    rows_->update(view_->rows());
    detail_.follow(view_->detail(), updates());
}

}  // namespace larkspan::bridge
