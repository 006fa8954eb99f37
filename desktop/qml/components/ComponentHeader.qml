import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A component's name, and on its baseline at the other end its status; below the name if they do not fit on one line.
Item {
    id: header
    required property string name
    required property pill status
    readonly property bool isStacked: words.implicitWidth + 2 * Theme.unit + shape.implicitWidth > width

    implicitHeight: Math.max(words.height, shape.y + shape.height)

    Label {
        id: words
        width: header.isStacked ? header.width : implicitWidth
        text: header.name
        font.pointSize: Theme.title
        font.weight: Font.DemiBold
        wrapMode: header.isStacked ? Text.Wrap : Text.NoWrap
        horizontalAlignment: Text.AlignLeft
        Accessible.role: Accessible.Heading
    }
    Pill {
        id: shape
        x: header.isStacked ? 0 : header.width - width
        y: header.isStacked ? words.height + Theme.unit : words.baselineOffset - baselineOffset
        width: Math.min(implicitWidth, header.width)
        pill: header.status
        pointSize: Theme.subheadline
    }
}
