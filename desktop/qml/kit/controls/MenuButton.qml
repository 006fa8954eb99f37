import QtQuick
import Larkspan

// A button of the header bar that opens a menu. The menu is created when it is first opened, and the focus returns to the
// button when it closes.
ToolbarButton {
    id: button
    required property url file
    // The initial properties of the menu.
    required property var given

    onClicked: isMenuOpen = true

    LateLoader {
        id: loader
        anchors.fill: parent
        isWanted: button.isMenuOpen
        file: button.file
        given: button.given
    }
    Binding {
        target: loader.item
        property: "visible"
        value: button.isMenuOpen
    }
    Connections {
        target: loader.item
        ignoreUnknownSignals: true
        // Before it fades out, so that what it has opened finds the focus here, and keeps its own.
        function onAboutToHide() {
            button.isMenuOpen = false
            button.forceActiveFocus(Qt.PopupFocusReason)
        }
    }
}
