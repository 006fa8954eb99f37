#include "bridge/UpdateBridge.h"

#include <utility>

namespace larkspan::bridge {

UpdateBridge::UpdateBridge(std::shared_ptr<core::UpdaterController> updates, platform::Executor& main, QObject* parent)
    : QObject(parent)
    , updates_(std::move(updates))
    , notice_(main, [this] { emit changed(); })
    , subscription_(updates_->objectWillChange([this] { notice_.announce(); }))
{
}

}  // namespace larkspan::bridge
