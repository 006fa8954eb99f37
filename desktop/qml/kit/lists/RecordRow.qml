import QtQuick
import Larkspan
import Larkspan.Bridge

// A record in a list: its dot, its title over a line of details, and the content at the end.
CardRow {
    id: delegate
    property int tone: Tone.Gray
    default property alias details: line.data
    property alias trailing: end.data

    contentItem: Item {
        implicitHeight: words.implicitHeight

        StatusDot {
            id: dot
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.recordDotSize
            tone: delegate.tone
            word: delegate.description
            // The row itself says it.
            Accessible.ignored: true
        }
        Column {
            id: words
            anchors.left: dot.right
            anchors.leftMargin: Theme.unit + Theme.halfUnit
            anchors.right: end.left
            anchors.rightMargin: Theme.unit + Theme.halfUnit
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.halfUnit / 2

            MarqueeText {
                width: parent.width
                layoutHeight: Theme.titleHeight
                text: delegate.name
                font.weight: Font.DemiBold
            }
            // One below the other if a large font leaves no room.
            Flow {
                id: line
                width: parent.width
                spacing: Theme.narrowGap
            }
        }
        Row {
            id: end
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
        }
    }
}
