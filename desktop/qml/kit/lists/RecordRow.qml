import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A record in a list: its dot, its title over a line of details, and the content at the end.
CardRow {
    id: delegate
    property int tone: Tone.Gray
    default property alias details: line.data
    property alias trailing: content.end

    contentItem: RowContent {
        id: content
        wordsSpacing: Theme.halfUnit / 2
        wordsWidth: Math.max(title.implicitWidth, line.wordsWidth)
        mark: StatusDot {
            width: Theme.recordDotSize
            tone: delegate.tone
            word: delegate.description
            // The row itself says it.
            Accessible.ignored: true
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
            // Of all details side by side.
            readonly property real wordsWidth: {
                let sum = -spacing
                for (let at = 0; at < children.length; ++at) {
                    if (children[at].visible) sum += spacing + children[at].implicitWidth
                }
                return sum
            }
            width: parent.width
            spacing: Theme.narrowGap
        }
    }
}
