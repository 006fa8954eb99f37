#include "bridge/CreateIncidentBridge.h"

#include <utility>

#include "bridge/ValueList.h"

namespace larkspan::bridge {

CreateIncidentBridge::CreateIncidentBridge(
    std::shared_ptr<incidents::CreateIncidentView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
{
    for (const auto& subscription : view_->observe(observer())) keep(subscription);
    CreateIncidentBridge::readState();
}

void CreateIncidentBridge::readState()
{
    groups_ = valuesOf<ChoiceValue>(selection().groupChoices());
    components_ = valuesOf<ChoiceValue>(selection().componentChoices());
    monitors_ = valuesOf<ChoiceValue>(view_->monitorChoices());
}

}  // namespace larkspan::bridge
