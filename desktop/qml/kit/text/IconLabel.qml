import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A symbol, or progress, and a sentence beside it that wraps.
Row {
    id: line
    property string symbol
    required property string text
    property int tone: Tone.Primary
    property bool showsProgress: false
    property real pointSize: Theme.body
    // The width with the sentence on one line.
    readonly property real naturalWidth: Math.ceil(label.x + label.implicitWidth)

    spacing: Theme.unit

    BusyIndicator {
        visible: line.showsProgress
        y: Math.max(0, Math.round((label.firstLineHeight - height) / 2))
        name: line.text
    }
    Symbol {
        visible: line.symbol !== ""
        y: Math.max(0, Math.round((label.firstLineHeight - height) / 2))
        width: Theme.iconSize
        height: Theme.iconSize
        name: line.symbol
        color: Theme.toneColor(line.tone)
    }
    Label {
        id: label
        readonly property real firstLineHeight: lineCount > 0 ? implicitHeight / lineCount : implicitHeight
        width: line.width - x
        text: line.text
        font.pointSize: line.pointSize
        color: Theme.toneColor(line.tone)
        wrapMode: Text.Wrap
    }
}
