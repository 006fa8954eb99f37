import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Bridge.Incidents

// The actions of an incident: in one row if there is room, else one below the other, with the first two side by side.
// In the editor, the button that sends the text.
Item {
    id: actions
    required property IncidentDetailBridge incident
    readonly property list<actionButton> buttons: incident.buttons
    readonly property bool isCompact: row.implicitWidth > card.width - 4 * Theme.unit

    implicitHeight: card.y + card.height

    component Command: ActionCommand {
        required property int index
        readonly property bool isPaired: button.isPaired
        // One that goes asks once more.
        button: index < actions.buttons.length ? actions.buttons[index] : gone
        property actionButton gone
        onClicked: actions.incident.press(button.id)
    }

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
                model: actions.buttons.length
                Command {
                    transform: Translate { x: isProminent ? Math.max(0, row.gap) : 0 }
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
                model: actions.buttons.length
                Command {
                    visible: isProminent
                    anchors.horizontalCenter: parent.horizontalCenter
                }
            }
            Rectangle {
                width: parent.width
                height: Theme.hairline
                color: Theme.line
            }
            Grid {
                id: pair
                readonly property real wordsWidth: {
                    let sum = Theme.wideGap
                    for (let at = 0; at < paired.count; ++at) {
                        const button = paired.itemAt(at) as Command
                        if (button && button.isPaired) sum += button.implicitWidth
                    }
                    return sum
                }

                anchors.horizontalCenter: parent.horizontalCenter
                columns: pair.wordsWidth > column.width ? 1 : 2
                horizontalItemAlignment: Grid.AlignHCenter
                spacing: Theme.wideGap

                Repeater {
                    id: paired
                    model: actions.buttons.length
                    Command {
                        visible: isPaired
                    }
                }
            }
            Repeater {
                model: actions.buttons.length
                Command {
                    visible: !isPaired && !isProminent
                    anchors.horizontalCenter: parent.horizontalCenter
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
