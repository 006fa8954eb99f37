#include "bridge/workspace/SettingsBridge.h"

#include <cstring>
#include <utility>

namespace larkspan::bridge {

SettingsBridge::SettingsBridge(
    std::shared_ptr<workspace::SettingsView> settings, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , settings_(std::move(settings))
{
    followChangesOf(*settings_);
}

void SettingsBridge::edit(const QString& text)
{
    // Qt does not overwrite what it releases.
    auto typed = text.toUtf8();
    settings_->edit(typed.toStdString());
    explicit_bzero(typed.data(), static_cast<std::size_t>(typed.size()));
}

}  // namespace larkspan::bridge
