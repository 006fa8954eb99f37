import QtQuick
import QtQuick.Templates as T
import Larkspan

// Creates a sheet or a dialog when it is to be shown, and destroys it afterwards. The focus then returns to the item
// that had it.
Loader {
    id: loader
    required property bool isShown
    // Changes with each new reason to show it, which may come before the previous popup is destroyed.
    property int occasion: 0
    // Emitted when it has closed in any way.
    signal dismissed

    // A popup needs a window, so it waits until the loader is in one.
    active: isShown && T.Overlay.overlay !== null
    onLoaded: open()
    onOccasionChanged: if (item && !(item as T.Popup).opened) open()
    onItemChanged: if (!item) focusBefore.giveBack()

    function open() {
        focusBefore.remember(Window.activeFocusItem)
        const popup = item as T.Popup
        popup.open()
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
