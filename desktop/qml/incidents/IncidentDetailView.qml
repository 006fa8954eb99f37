import QtQuick
import Larkspan
import Larkspan.Bridge.Incidents

// One incident and its actions. Its message may be long, so it is the list, and the rest is above and below it.
EditableDetailFrame {
    id: view
    required property IncidentDetailBridge incident

    record: incident
    title: incident.title

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
}
