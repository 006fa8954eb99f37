import QtQuick
import Larkspan.Kit

// A button of the header bar that opens a menu.
ToolbarButton {
    id: button
    required property url file
    // The initial properties of the menu.
    required property var given

    isMenuOpen: menu.isOpen
    onClicked: menu.isOpen = true

    MenuLoader {
        id: menu
        holder: button
        file: button.file
        given: button.given
    }
}
