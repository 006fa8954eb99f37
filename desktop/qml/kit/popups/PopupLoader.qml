import QtQuick
import QtQuick.Templates as T
import Larkspan

// Makes a sheet or a dialog when it is to be seen, and lets go of it when it is not. Whoever had the focus has it again
// then.
Loader {
    id: loader
    required property bool isShown
    // Tells one reason to be seen from the next, which may come before the popup of the one before has been let go.
    property int occasion: 0
    // It has closed, in whatever way.
    signal dismissed

    // A popup opens over a window, so it waits until its maker is in one.
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
