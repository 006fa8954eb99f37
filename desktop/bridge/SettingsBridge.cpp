#include "bridge/SettingsBridge.h"

#include <utility>

namespace larkspan::bridge {

SettingsBridge::SettingsBridge(
    std::shared_ptr<workspace::Settings> settings, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , settings_(std::move(settings))
{
    followChangesOf(*settings_);
}

void SettingsBridge::readState()
{
    const bool heldText = std::exchange(fieldHoldsText_, !settings_->apiKey->empty());
    if (heldText && !fieldHoldsText_) emit fieldCleared();
}

}  // namespace larkspan::bridge
