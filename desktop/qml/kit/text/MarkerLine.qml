import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A marker in one small line, as in the header.
Row {
    id: line
    required property marker marker
    // The available width; a longer text is cut at its end.
    property real maximumWidth: Infinity
    // Whether its progress is left out, because another indicator already shows it.
    property bool hidesProgress: false
    readonly property bool showsProgress: marker.showsProgress && !hidesProgress
    // The width that shows the whole text.
    readonly property real naturalWidth: Math.ceil(label.implicitWidth)
        + (showsProgress || marker.symbol !== "" ? Theme.smallIconSize + spacing : 0)

    spacing: Theme.unit

    BusyIndicator {
        anchors.verticalCenter: parent.verticalCenter
        visible: line.showsProgress
        width: Theme.smallIconSize
        height: width
        name: line.marker.text
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: line.marker.symbol !== ""
        width: Theme.smallIconSize
        height: width
        name: line.marker.symbol
        color: Theme.toneColor(line.marker.symbolTone)
    }
    Label {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Math.max(0, line.maximumWidth - x))
        text: line.marker.text
        font.pointSize: Theme.caption
        color: Theme.toneColor(line.marker.tone)
    }
}
