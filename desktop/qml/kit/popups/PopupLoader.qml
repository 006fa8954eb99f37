import QtQuick
import Larkspan.Kit

// Creates a sheet or a dialog when it is to be shown, and destroys it afterwards. The focus then returns to the item
// that had it.
Loader {
    id: loader
    required property bool isShown
    // Changes with each new reason to show it, which may come before the previous popup is destroyed.
    property int occasion: 0
    // The popup, without its type, which would load Qt's controls before any of them is shown.
    readonly property var popup: item
    // Emitted when it has closed in any way.
    signal dismissed

    // A popup needs a window, so it waits until the loader is in one.
    active: isShown && Window.window !== null
    onLoaded: open()
    onOccasionChanged: if (popup && !popup.opened) open()
    onItemChanged: if (!item) focusBefore.giveBack()

    function open() {
        focusBefore.remember(Window.activeFocusItem)
        popup.isOverAnother = isWithin(popup.parent)
        popup.open()
    }
    function isWithin(layer: Item): bool {
        let ancestor = loader.parent
        while (ancestor && ancestor !== layer) ancestor = ancestor.parent
        return ancestor !== null
    }

    Connections {
        target: loader.item
        ignoreUnknownSignals: true
        function onClosed() {
            focusBefore.giveBack()
            loader.dismissed()
        }
    }

    FocusReturn {
        id: focusBefore
    }
}
