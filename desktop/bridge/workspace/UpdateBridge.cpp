#include "bridge/workspace/UpdateBridge.h"

#include <utility>

namespace larkspan::bridge {

UpdateBridge::UpdateBridge(
    std::shared_ptr<core::UpdaterController> controller, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , controller_(std::move(controller))
{
    followChangesOf(*controller_);
}

}  // namespace larkspan::bridge
