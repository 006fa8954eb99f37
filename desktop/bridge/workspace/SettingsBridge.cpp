#include "bridge/workspace/SettingsBridge.h"

#include <utility>

namespace larkspan::bridge {

SettingsBridge::SettingsBridge(
    std::shared_ptr<workspace::SettingsView> settings, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , settings_(std::move(settings))
{
    followChangesOf(*settings_);
}

}  // namespace larkspan::bridge
