import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The uptime of one period, and behind it the number of incidents in a column of its own.
Item {
    id: line
    required property fact fact
    required property real digitWidth
    // The width of the column of captions.
    required property real captionWidth
    // Whether the figures stand below the label, from the left.
    required property bool isStacked
    // Where the captions begin then.
    required property real stackedCaptionX
    readonly property real ownStackedCaptionX: caption.text === "" ? 0 : Math.ceil(figure.implicitWidth) + Theme.unit
    readonly property real ownCaptionWidth: caption.text === "" ? 0 : Math.ceil(caption.implicitWidth) + Theme.unit
    // Without its caption.
    readonly property real ownWidth: label.implicitWidth + 2 * Theme.unit + figure.implicitWidth

    implicitHeight: isStacked ? label.height + figure.height : Math.max(label.height, figure.height)

    Label {
        id: label
        width: line.isStacked ? line.width : implicitWidth
        text: line.fact.label
        color: Theme.secondary
        wrapMode: line.isStacked ? Text.Wrap : Text.NoWrap
        horizontalAlignment: Text.AlignLeft
    }
    FigureText {
        id: figure
        x: line.isStacked ? 0 : line.width - line.captionWidth - width
        y: line.isStacked ? label.height : 0
        text: line.fact.text
        digitWidth: line.digitWidth
        color: Theme.toneColor(line.fact.tone)
        font.pointSize: Theme.body
        font.weight: Font.Medium
    }
    Label {
        id: caption
        visible: text !== ""
        x: line.isStacked ? line.stackedCaptionX : line.width - line.captionWidth + Theme.unit
        y: figure.y
        width: Math.min(implicitWidth, line.width - x)
        height: figure.height
        text: line.fact.caption
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
}
