import QtQuick
import Larkspan
import Larkspan.Bridge

// A record in a list: its dot, its title over a line of details, and the content at the end.
CardRow {
    id: delegate
    property int tone: Tone.Gray
    default property alias details: line.data
    property alias trailing: content.end

    contentItem: RowContent {
        id: content
        wordsSpacing: Theme.halfUnit / 2
        wordsWidth: title.implicitWidth
        mark: Rectangle {
            width: Theme.recordDotSize
            height: width
            radius: width / 2
            color: Theme.toneColor(delegate.tone)
        }

        MarqueeText {
            id: title
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
}
