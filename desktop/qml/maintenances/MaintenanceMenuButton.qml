import QtQuick
import Larkspan
import Larkspan.Bridge

// The menu of a maintenance's other actions.
ToolbarButton {
    id: button
    required property MaintenanceDetailBridge maintenance

    symbol: "ellipsis.circle"
    help: qsTr("More Actions")
    isMenuOpen: menu.visible
    onClicked: menu.popup(button, button.width - menu.implicitWidth, button.height + Theme.halfUnit)

    KitMenu {
        id: menu
        onClosed: button.forceActiveFocus(Qt.PopupFocusReason)

        KitMenuItem {
            text: qsTr("Edit")
            symbol: "pencil"
            enabled: !button.maintenance.isBusy
            onTriggered: button.maintenance.beginEditing()
        }
        KitMenuSeparator {}
        KitMenuItem {
            text: qsTr("Delete")
            symbol: "trash"
            isDestructive: true
            enabled: !button.maintenance.isBusy
            onTriggered: button.maintenance.confirmDelete()
        }
    }
}
