import QtQuick
import Larkspan.Kit

// Remembers the item that had the focus before a popup or page was opened, and gives the focus back.
QtObject {
    id: memory
    property Item holder: null

    function remember(item: Item) {
        // The row may have been reused or may no longer be the current one by then; its list knows.
        memory.holder = item instanceof CardRow ? item.ListView.view : item
    }

    function giveBack() {
        const item = memory.holder
        memory.holder = null
        if (item && item.visible && item.enabled) item.forceActiveFocus(Qt.OtherFocusReason)
    }
}
