import QtQuick
import Larkspan
import Larkspan.Bridge.Monitors

// A monitor's state as seen from one region.
Item {
    id: line
    required property regionRow row

    implicitHeight: name.implicitHeight

    Rectangle {
        id: dot
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.dotSize
        height: width
        radius: width / 2
        color: Theme.toneColor(line.row.tone)
    }
    Label {
        id: name
        anchors.left: dot.right
        anchors.leftMargin: Theme.unit
        anchors.right: average.left
        anchors.rightMargin: Theme.unit
        text: line.row.name
        font.pointSize: Theme.caption
        maximumLineCount: 1
    }
    Label {
        id: average
        anchors.right: parent.right
        width: Math.min(implicitWidth, line.width / 2)
        text: line.row.average
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
}
