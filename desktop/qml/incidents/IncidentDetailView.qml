import QtQuick
import Larkspan.Bridge.Incidents
import Larkspan.Kit
import Larkspan.Messages

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

    ActionDock {
        id: dock
        anchors.fill: parent
        scroller: list
        card: actions
        widest: list.widest

        MessageList {
            id: list
            message: view.incident.message
            keepsEnd: view.incident.isEditing
            above: IncidentFacts {
                incident: view.incident
                visibleHeight: list.height
            }
            below: ActionDockEnd {
                owner: dock
                onReached: list.showFocusAtEnd()
                sourceComponent: IncidentActions {
                    incident: view.incident
                    showsFirst: false
                }
            }
        }
        IncidentActions {
            id: actions
            incident: view.incident
        }
    }
}
