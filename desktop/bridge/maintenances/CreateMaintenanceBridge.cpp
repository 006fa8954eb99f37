#include "bridge/maintenances/CreateMaintenanceBridge.h"

namespace larkspan::bridge {

CreateMaintenanceBridge::CreateMaintenanceBridge(
    const std::shared_ptr<maintenances::CreateMaintenanceView>& view, const ScreenUpdates& updates, QObject* parent)
    : EventFormBridge(view, updates, parent)
    , view_(view)
    , scheduledFor_(view->scheduledFor, updates)
    , scheduledUntil_(view->scheduledUntil, updates)
{
}

}  // namespace larkspan::bridge
