import QtQuick
import Larkspan
import Larkspan.Bridge

// One maintenance, and what can be done to it; in its place, while it is edited, the editor. Its message may be long, so
// it is the list, and the rest stands above and below it.
ScreenFrame {
    id: view
    required property MaintenanceDetailBridge maintenance

    title: maintenance.title
    isBusy: maintenance.isBusy
    alert: maintenance.alert
    onAlertDismissed: maintenance.dismissAlert()

    leading: CommandButton {
        text: view.maintenance.closeLabel
        onClicked: view.wentBack()
    }
    trailing: [
        MaintenanceMenuButton {
            visible: !view.maintenance.isEditing
            maintenance: view.maintenance
        },
        CommandButton {
            visible: view.maintenance.isEditing
            text: qsTr("Save")
            isProminent: true
            enabled: view.maintenance.isSaveEnabled
            onClicked: view.maintenance.saveEdits()
        }
    ]

    MessageList {
        id: list
        anchors.fill: parent
        visible: !view.maintenance.isEditing
        message: view.maintenance.message
        above: MaintenanceFacts {
            maintenance: view.maintenance
        }
        below: MaintenanceActions {
            maintenance: view.maintenance
        }
    }
    Loader {
        anchors.fill: parent
        active: view.maintenance.isEditing
        enabled: !view.maintenance.isBusy
        focus: active
        onItemChanged: if (!item) list.forceActiveFocus(Qt.OtherFocusReason)
        sourceComponent: MaintenanceEditor {
            maintenance: view.maintenance
        }
    }

    ConfirmLoader {
        isShown: view.maintenance.showsDeleteConfirmation
        confirmation: view.maintenance.deleteConfirmation
        onDismissed: view.maintenance.cancelDelete()
        onConfirmed: view.maintenance.deleteRecord()
    }
    ConfirmLoader {
        isShown: view.maintenance.showsDiscardConfirmation
        confirmation: view.maintenance.discardConfirmation
        onDismissed: view.maintenance.keepEditing()
        onConfirmed: view.maintenance.discardChanges()
    }
}
