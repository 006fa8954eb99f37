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
        help: qsTr("Delete Incident")
        enabled: view.incident.isDeleteEnabled
        onClicked: view.incident.confirmDelete()
    }

    CardList {
        anchors.fill: parent
        name: qsTr("Description")
        rows: view.incident.message.rows
        widest: Theme.columnWidth * Theme.scale
        above: IncidentFacts {
            incident: view.incident
        }
        delegate: MessageRow {
            offsets: tableOffsets
            onFollowed: (cell, href) => view.incident.message.follow(index, cell, href)
        }
        below: IncidentActions {
            incident: view.incident
        }
    }

    TableOffsets {
        id: tableOffsets
    }
    PopupLoader {
        isShown: view.incident.showsDeleteConfirmation
        onDismissed: view.incident.cancelDelete()
        sourceComponent: ConfirmDialog {
            confirmation: view.incident.deleteConfirmation
            onConfirmed: view.incident.deleteIncident()
        }
    }
    PopupLoader {
        isShown: view.incident.showsDiscardConfirmation
        onDismissed: view.incident.keepEditing()
        sourceComponent: ConfirmDialog {
            confirmation: view.incident.discardConfirmation
            onConfirmed: view.incident.discardChanges()
        }
    }
    PopupLoader {
        isShown: view.incident.message.asksAboutLink
        onDismissed: view.incident.message.cancelLink()
        sourceComponent: ConfirmDialog {
            confirmation: view.incident.message.linkConfirmation
            isDestructive: false
            onConfirmed: view.incident.message.openLink()
        }
    }
}
