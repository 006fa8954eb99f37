import QtQuick
import Larkspan.Kit

// The menu of a button, its holder, created when it is first opened. The focus returns to the button when it closes.
LateLoader {
    id: loader
    required property Item holder
    property bool isOpen: false
    // Emitted when it closes in any way, and the button has the focus.
    signal closed

    anchors.fill: holder
    isWanted: isOpen

    Binding {
        target: loader.item
        property: "visible"
        value: loader.isOpen
    }
    Connections {
        target: loader.item
        ignoreUnknownSignals: true
        // Before it fades out, so that what it has opened finds the focus here, and keeps its own.
        function onAboutToHide() {
            loader.isOpen = false
            loader.holder.forceActiveFocus(Qt.PopupFocusReason)
            loader.closed()
        }
    }
}
