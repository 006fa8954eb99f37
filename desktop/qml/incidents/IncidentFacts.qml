import QtQuick
import Larkspan
import Larkspan.Bridge

// What stands above an incident's message: how it is, and when it was what.
Column {
    id: facts
    required property IncidentDetailBridge incident

    spacing: Theme.margin
    bottomPadding: Theme.unit

    Column {
        width: parent.width
        spacing: Theme.halfUnit

        MarqueeText {
            width: parent.width
            layoutHeight: Theme.detailTitleHeight
            text: facts.incident.incidentTitle
            font.pointSize: Theme.title
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
        }
        Flow {
            width: parent.width
            spacing: Theme.unit

            Repeater {
                model: facts.incident.pills
                Pill {
                    required property pill modelData
                    pill: modelData
                    pointSize: Theme.subheadline
                    sidePadding: Theme.wideGap
                    topPadding: Theme.headerPillPadding
                }
            }
        }
    }
    GroupBox {
        width: parent.width
        title: qsTr("Timeline")
        symbol: "clock.arrow.circlepath"
        contentSpacing: Theme.unit

        Repeater {
            model: facts.incident.timeline
            TimelineLine {
                required property timelineRow modelData
                width: parent.width
                row: modelData
            }
        }
        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.line
        }
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
                Component.onCompleted: {
                    text = facts.incident.editMessage
                    forceActiveFocus(Qt.OtherFocusReason)
                }
                onEdited: text => facts.incident.edit(text)
            }
        }
    }
}
