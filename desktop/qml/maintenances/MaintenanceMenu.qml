import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Kit

// What else can be done to a maintenance.
KitMenu {
    id: more
    required property MaintenanceDetailBridge maintenance

    x: parent ? parent.width - width : 0

    KitMenuItem {
        text: qsTr("Edit")
        symbol: "pencil"
        enabled: !more.maintenance.isBusy
        onTriggered: more.maintenance.beginEditing()
    }
    KitMenuSeparator {}
    KitMenuItem {
        text: qsTr("Delete")
        symbol: "trash"
        isDestructive: true
        enabled: !more.maintenance.isBusy
        onTriggered: more.maintenance.confirmDelete()
    }
}
