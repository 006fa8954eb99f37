#include "bridge/screens/ListBridge.h"

#include <utility>

namespace larkspan::bridge {

ListBridge::ListBridge(std::shared_ptr<presentation::ListScreen> list, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , list_(std::move(list))
    , updates_(updates)
{
    followChangesOf(*list_);
}

void ListBridge::dismissAlert()
{
    if (auto* const alert = list_->alert()) alert->dismiss();
}

void ListBridge::readState()
{
    placeholder_ = PlaceholderValue::of(list_->placeholder());
}

}  // namespace larkspan::bridge
