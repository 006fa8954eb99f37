#include "bridge/incidents/CreateIncidentBridge.h"

#include <utility>

namespace larkspan::bridge {

CreateIncidentBridge::CreateIncidentBridge(
    std::shared_ptr<incidents::CreateIncidentView> view, const ScreenUpdates& updates, QObject* parent)
    : EventFormBridge(view, updates, parent)
    , view_(std::move(view))
{
}

}  // namespace larkspan::bridge
