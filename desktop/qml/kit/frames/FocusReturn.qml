import QtQuick
import Larkspan

// Remembers who had the focus when something came up over it, and gives it back.
QtObject {
    id: memory
    property Item holder: null

    function remember(item: Item) {
        // A row may have made room for another one by then, or not be the current one any more; its list knows.
        memory.holder = item instanceof CardRow ? item.ListView.view : item
    }

    function giveBack() {
        const item = memory.holder
        memory.holder = null
        if (item && item.visible && item.enabled) item.forceActiveFocus(Qt.OtherFocusReason)
    }
}
