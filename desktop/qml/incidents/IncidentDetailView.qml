import QtQuick
import Larkspan
import Larkspan.Bridge

// One incident, and what can be done to it. Its message may be long, so it is the list, and the rest stands above and
// below it.
ScreenFrame {
    id: view
    required property IncidentDetailBridge incident

    title: incident.title
    isBusy: incident.isBusy
    alert: incident.alert
    onAlertDismissed: incident.dismissAlert()

    leading: CommandButton {
        text: view.incident.closeLabel
        onClicked: view.wentBack()
    }
    trailing: ToolbarButton {
        symbol: "trash"
        ink: Theme.red
        help: qsTr("Delete Incident")
        enabled: !view.incident.isBusy
        onClicked: view.incident.confirmDelete()
    }

    MessageList {
        anchors.fill: parent
        message: view.incident.message
        above: IncidentFacts {
            incident: view.incident
        }
        below: IncidentActions {
            incident: view.incident
        }
    }

    ConfirmLoader {
        isShown: view.incident.showsDeleteConfirmation
        confirmation: view.incident.deleteConfirmation
        onDismissed: view.incident.cancelDelete()
        onConfirmed: view.incident.deleteRecord()
    }
    ConfirmLoader {
        isShown: view.incident.showsDiscardConfirmation
        confirmation: view.incident.discardConfirmation
        onDismissed: view.incident.keepEditing()
        onConfirmed: view.incident.discardChanges()
    }
}
