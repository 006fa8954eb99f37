import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A card under a small title, with an optional symbol before it.
RevealedColumn {
    id: group
    // No title if empty.
    property string title
    property string symbol
    // Whether there is a card; if not, the title is the heading of what follows.
    property bool hasCard: true
    property alias contentSpacing: column.spacing
    default property alias content: column.data

    spacing: Theme.unit

    Row {
        visible: group.title !== ""
        spacing: Theme.unit

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: group.symbol !== ""
            width: Theme.iconSize
            height: Theme.iconSize
            name: group.symbol
            color: Theme.secondary
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: group.title
            font.pointSize: Theme.subheadline
            font.weight: Font.DemiBold
            color: Theme.secondary
            Accessible.role: Accessible.Heading
        }
    }

    Rectangle {
        visible: group.hasCard
        width: parent.width
        height: column.implicitHeight + 4 * Theme.unit
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line

        Column {
            id: column
            x: 2 * Theme.unit
            y: 2 * Theme.unit
            width: parent.width - 4 * Theme.unit
            spacing: Theme.unit + Theme.halfUnit
        }
    }
}
