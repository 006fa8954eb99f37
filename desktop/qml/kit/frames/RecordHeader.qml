import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A record's title, and below it its status.
Column {
    id: header
    required property string title
    required property list<pill> pills
    property int titleHeight: Theme.detailTitleHeight
    property real pointSize: Theme.title

    spacing: Theme.unit

    MarqueeText {
        id: words
        width: parent.width
        layoutHeight: header.titleHeight
        text: header.title
        font.pointSize: header.pointSize
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading

        HoverHandler {
            id: pointer
        }
        ToolTipLoader {
            text: header.title
            isShown: pointer.hovered && words.truncated
        }
    }
    Flow {
        width: parent.width
        spacing: Theme.unit

        Repeater {
            model: header.pills
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
