#include "bridge/screens/GuardedScreenBridge.h"

#include <utility>

namespace larkspan::bridge {

GuardedScreenBridge::GuardedScreenBridge(
    std::shared_ptr<presentation::GuardedScreen> screen, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , screen_(std::move(screen))
{
    followChangesOf(*screen_);
}

}  // namespace larkspan::bridge
