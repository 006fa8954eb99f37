import QtQuick
import Larkspan.Kit

// A chapter of the sheet: its title and its remark, and below them its specimens on a card.
Column {
    id: group
    required property string title
    required property string remark
    property alias contentSpacing: column.spacing
    default property alias content: column.data

    spacing: 2 * Theme.unit

    Column {
        width: parent.width
        spacing: Theme.halfUnit / 2

        Label {
            text: group.title
            font.pointSize: Theme.title2
            font.weight: Font.DemiBold
        }
        Label {
            width: parent.width
            text: group.remark
            font.pointSize: Theme.subheadline
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
    Rectangle {
        width: parent.width
        height: column.height + 6 * Theme.unit
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line

        Column {
            id: column
            x: 3 * Theme.unit
            y: 3 * Theme.unit
            width: parent.width - 6 * Theme.unit
            spacing: 2 * Theme.unit
        }
    }
}
