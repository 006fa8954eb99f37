#include "bridge/GuardedScreenBridge.h"

#include <utility>

namespace larkspan::bridge {

GuardedScreenBridge::GuardedScreenBridge(
    std::shared_ptr<presentation::GuardedScreen> screen, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , screen_(std::move(screen))
{
    for (const auto& subscription : screen_->observe(observer())) keep(subscription);
}

}  // namespace larkspan::bridge
