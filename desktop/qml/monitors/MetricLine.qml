import QtQuick
import Larkspan
import Larkspan.Bridge.Monitors

// A figure of the panel: its label at the left, its value at the right.
Item {
    id: line
    required property metricRow row

    implicitHeight: label.implicitHeight

    Label {
        id: label
        width: Math.min(implicitWidth, line.width / 2)
        text: line.row.label
        font.pointSize: Theme.subheadline
        color: Theme.secondary
    }
    Label {
        anchors.right: parent.right
        width: Math.min(implicitWidth, line.width - label.width - Theme.unit)
        text: line.row.value
        font.pointSize: Theme.subheadline
        font.weight: Font.Bold
        color: Theme.toneColor(line.row.tone)
    }
}
