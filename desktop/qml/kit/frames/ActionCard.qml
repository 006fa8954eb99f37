import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The actions of a record on a card: in one row if there is room, with one that stands apart at the other end; if not,
// one below the other, the most likely ones first and paired ones side by side.
GroupBox {
    id: card
    required property list<actionButton> buttons
    // A part of the actions: the first of the most likely ones, or all others.
    property bool showsFirst: true
    property bool showsOthers: true
    readonly property int first: {
        for (let at = 0; at < buttons.length; ++at) if (buttons[at].isProminent) return at
        return -1
    }
    readonly property int plainCount: count(button => !button.isProminent)
    readonly property int pairedCount: count(button => button.isPaired)
    readonly property real room: width - 4 * Theme.unit
    readonly property bool isCompact: row.implicitWidth + row.least > room
    readonly property bool isDivisible: isCompact && first >= 0 && buttons.length > 1
    // Whether the most likely actions and the others stand in two parts.
    readonly property bool isParted: first >= 0 && plainCount > 0
    // The height of the card with all actions, even if it shows a part of them.
    readonly property real wholeHeight: {
        const lines = !isCompact ? 1 : buttons.length - (pair.isStacked ? 0 : Math.max(0, pairedCount - 1))
        const parts = lines * row.implicitHeight + (lines - 1) * column.spacing + 4 * Theme.unit
        return isCompact && isParted ? parts + Theme.hairline + column.spacing : parts
    }
    signal pressed(button: string)

    function count(isMeant: var): int {
        let sum = 0
        for (let at = 0; at < buttons.length; ++at) sum += isMeant(buttons[at]) ? 1 : 0
        return sum
    }
    function shows(at: int): bool {
        return at === first ? showsFirst : showsOthers
    }

    component Command: ActionCommand {
        required property int index
        // One that goes asks once more.
        button: index < card.buttons.length ? card.buttons[index] : gone
        property actionButton gone
        readonly property bool isPaired: button.isPaired
        readonly property bool isApart: button.isApart
        onClicked: card.pressed(button.id)
    }

    Row {
        id: row
        // A button that stands apart has twice the distance of the others.
        readonly property real least: {
            for (let at = 1; at < card.buttons.length; ++at) if (card.buttons[at].isApart) return spacing
            return 0
        }
        readonly property real rest: Math.max(0, card.room - implicitWidth)

        visible: !card.isCompact && card.buttons.length > 0
        spacing: Theme.unit

        Repeater {
            model: card.buttons.length
            Command {
                transform: Translate { x: isApart ? row.rest : 0 }
            }
        }
    }
    Column {
        id: column
        width: parent.width
        visible: card.isCompact
        spacing: Theme.unit + Theme.halfUnit

        Repeater {
            model: card.buttons.length
            Command {
                visible: isProminent && card.shows(index)
                anchors.horizontalCenter: parent.horizontalCenter
            }
        }
        Rectangle {
            visible: card.isParted && card.showsFirst && card.showsOthers
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
            readonly property bool isStacked: wordsWidth > card.room

            anchors.horizontalCenter: parent.horizontalCenter
            visible: card.showsOthers
            columns: isStacked ? 1 : 2
            horizontalItemAlignment: Grid.AlignHCenter
            spacing: Theme.wideGap

            Repeater {
                id: paired
                model: card.buttons.length
                Command {
                    visible: isPaired
                }
            }
        }
        Repeater {
            model: card.buttons.length
            Command {
                visible: !isPaired && !isProminent && card.showsOthers
                anchors.horizontalCenter: parent.horizontalCenter
            }
        }
    }
}
