#include "bridge/screens/ScreenBridge.h"

namespace larkspan::bridge {

ScreenBridge::ScreenBridge(const ScreenUpdates& updates, QObject* parent)
    : QObject(parent)
    , changes_(updates, [this] {
        readState();
        emit changed();
    })
{
}

std::function<void()> ScreenBridge::observer()
{
    return [this] { changes_.announce(); };
}

}  // namespace larkspan::bridge
