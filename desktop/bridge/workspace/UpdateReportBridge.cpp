#include "bridge/workspace/UpdateReportBridge.h"

#include <utility>

namespace larkspan::bridge {

UpdateReportBridge::UpdateReportBridge(
    std::shared_ptr<core::UpdaterController> controller, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , controller_(std::move(controller))
{
    followChangesOf(*controller_);
}

}  // namespace larkspan::bridge
