#include "bridge/incidents/IncidentDetailBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

using incidents::IncidentDetailView;

IncidentDetailBridge::IncidentDetailBridge(
    std::shared_ptr<IncidentDetailView> view, const ScreenUpdates& updates, QObject* parent)
    : EditableDetailBridge(view, updates, parent)
    , view_(std::move(view))
    , message_(view_->message, updates)
{
    IncidentDetailBridge::readState();
}

void IncidentDetailBridge::readState()
{
    pills_ = valuesOf<PillValue>(view_->pills());
    timeline_ = valuesOf<TimelineRowValue>(view_->timeline());
    message_.show(view_->showsDescription() ? view_->description() : "");
    buttons_ = valuesOf<ActionButtonValue>(view_->buttons());
}

}  // namespace larkspan::bridge
