#include "bridge/screens/EditableDetailBridge.h"

namespace larkspan::bridge {

EditableDetailBridge::EditableDetailBridge(
    const std::shared_ptr<presentation::EditableDetail>& detail, const ScreenUpdates& updates, QObject* parent)
    : GuardedScreenBridge(detail, updates, parent)
    , detail_(detail)
{
}

}  // namespace larkspan::bridge
