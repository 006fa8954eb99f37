import QtQuick
import Larkspan
import Larkspan.Bridge

// Opens the rows of the panel's item, for desktops that show no such item and for users who are in the window.
ToolbarButton {
    id: button
    required property StatusMenuBridge menu

    symbol: "line.3.horizontal"
    help: qsTr("Menu")
    isMenuOpen: popup.visible
    onClicked: popup.open()

    StatusMenu {
        id: popup
        x: button.width - width
        y: button.height + Theme.halfUnit
        menu: button.menu
        onClosed: button.forceActiveFocus(Qt.PopupFocusReason)
    }
}
