#include "bridge/screens/EventFormBridge.h"

#include <utility>

namespace larkspan::bridge {

EventFormBridge::EventFormBridge(
    std::shared_ptr<presentation::EventForm> form, const ScreenUpdates& updates, QObject* parent)
    : GuardedScreenBridge(form, updates, parent)
    , form_(std::move(form))
    , selection_(form_->selection, updates)
{
}

}  // namespace larkspan::bridge
