#include "bridge/SettingsBridge.h"

#include <utility>

namespace larkspan::bridge {

SettingsBridge::SettingsBridge(std::shared_ptr<workspace::Settings> settings, platform::Executor& main, QObject* parent)
    : QObject(parent)
    , settings_(std::move(settings))
    , notice_(main, [this] { tellChanges(); })
    , subscription_(settings_->objectWillChange([this] { notice_.announce(); }))
{
}

void SettingsBridge::tellChanges()
{
    const bool heldText = std::exchange(fieldHoldsText_, !settings_->apiKey->empty());
    if (heldText && !fieldHoldsText_) emit fieldCleared();
    emit changed();
}

}  // namespace larkspan::bridge
