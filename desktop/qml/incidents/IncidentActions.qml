import QtQuick
import Larkspan
import Larkspan.Bridge

// What can be done to an incident: in one row where there is room for it, else one below the other. In the editor, sending
// what was typed.
Item {
    id: actions
    required property IncidentDetailBridge incident
    readonly property list<actionButton> buttons: incident.isEditing ? [] : incident.buttons
    readonly property bool isCompact: row.implicitWidth > card.width - 4 * Theme.unit

    implicitHeight: card.y + card.height

    Rectangle {
        id: card
        y: Theme.margin
        width: parent.width
        height: (actions.incident.isEditing ? save.height : actions.isCompact ? column.height : row.height) + 4 * Theme.unit
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line

        Row {
            id: row
            readonly property real gap: card.width - 4 * Theme.unit - implicitWidth

            x: 2 * Theme.unit
            y: 2 * Theme.unit
            visible: !actions.isCompact && !actions.incident.isEditing
            spacing: Theme.unit

            Repeater {
                model: actions.buttons
                ActionCommand {
                    id: command
                    onPressedById: id => actions.incident.press(id)
                    transform: Translate { x: command.isProminent ? Math.max(0, row.gap) : 0 }
                }
            }
        }
        Column {
            id: column
            x: 2 * Theme.unit
            y: 2 * Theme.unit
            width: parent.width - 4 * Theme.unit
            visible: actions.isCompact && !actions.incident.isEditing
            spacing: Theme.unit + Theme.halfUnit

            Repeater {
                model: actions.buttons
                ActionCommand {
                    onPressedById: id => actions.incident.press(id)
                    visible: modelData.isProminent
                    anchors.horizontalCenter: parent.horizontalCenter
                }
            }
            Rectangle {
                width: parent.width
                height: Theme.hairline
                color: Theme.line
            }
            Flow {
                id: flow
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width, flow.implicitWidth)
                spacing: Theme.wideGap

                Repeater {
                    model: actions.buttons
                    ActionCommand {
                        onPressedById: id => actions.incident.press(id)
                        visible: !modelData.isProminent
                    }
                }
            }
        }
        CommandButton {
            id: save
            anchors.right: parent.right
            anchors.rightMargin: 2 * Theme.unit
            y: 2 * Theme.unit
            visible: actions.incident.isEditing
            text: qsTr("Save Update")
            symbol: "checkmark"
            isProminent: true
            enabled: actions.incident.isSaveEnabled
            onClicked: actions.incident.saveUpdate()
        }
    }
}
