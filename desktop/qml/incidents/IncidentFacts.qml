import QtQuick
import Larkspan.Bridge.Incidents
import Larkspan.Events
import Larkspan.Kit

// The part above an incident's message: its status, and the times of its states.
Column {
    id: facts
    required property IncidentDetailBridge incident
    // The height of the part of the screen that shows it.
    required property real visibleHeight

    spacing: Theme.margin
    bottomPadding: incident.showsDescription && !incident.isEditing ? Theme.unit : 0

    RecordHeader {
        width: parent.width
        title: facts.incident.incidentTitle
        pills: facts.incident.pills
    }
    TimelineGroup {
        width: parent.width
        rows: facts.incident.timeline

        DurationLine {
            width: parent.width
            duration: facts.incident.duration
        }
    }
    GroupBox {
        visible: facts.incident.assignedTo !== ""
        width: parent.width
        title: qsTr("Assigned To")
        symbol: "person.circle"

        Label {
            width: parent.width
            text: facts.incident.assignedTo
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
    }
    GroupBox {
        visible: facts.incident.showsDescription || facts.incident.isEditing
        width: parent.width
        title: qsTr("Description")
        symbol: "doc.text"
        hasCard: facts.incident.isEditing

        Loader {
            width: parent.width
            active: facts.incident.isEditing
            sourceComponent: TextBox {
                name: qsTr("Update")
                isTight: true
                // A long text scrolls before the box is taller than what can be seen of it.
                height: Math.max(Theme.textBoxHeight, Math.min(implicitHeight, facts.visibleHeight - 2 * Theme.margin - 2 * Theme.unit))
                Component.onCompleted: {
                    show(facts.incident.editMessage)
                    forceActiveFocus(Qt.OtherFocusReason)
                }
                onEdited: text => facts.incident.edit(text)
            }
        }
    }
}
