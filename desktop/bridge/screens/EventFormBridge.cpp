#include "bridge/screens/EventFormBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

EventFormBridge::EventFormBridge(
    std::shared_ptr<presentation::EventForm> form, const ScreenUpdates& updates, QObject* parent)
    : GuardedScreenBridge(form, updates, parent)
    , form_(std::move(form))
{
    EventFormBridge::readState();
}

void EventFormBridge::readState()
{
    groups_ = valuesOf<ChoiceValue>(selection().groupChoices());
    components_ = valuesOf<ChoiceValue>(selection().componentChoices());
    monitors_ = valuesOf<ChoiceValue>(form_->monitorChoices());
}

}  // namespace larkspan::bridge
