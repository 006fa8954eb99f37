#include "bridge/screens/ScreenBridge.h"

namespace larkspan::bridge {

ScreenBridge::ScreenBridge(const ScreenUpdates& updates, QObject* parent)
    : QObject(parent)
    , notice_(updates, [this] {
        readState();
        emit changed();
    })
{
}

std::function<void()> ScreenBridge::observer()
{
    return [this] { notice_.announce(); };
}

}  // namespace larkspan::bridge
