import QtQuick
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// The callout of the selected sample of a latency graph.
Rectangle {
    id: callout
    required property selectedLatency selection
    readonly property bool floats: true

    implicitWidth: lines.implicitWidth + 2 * Theme.itemGap
    implicitHeight: lines.implicitHeight + 2 * Theme.halfUnit
    radius: Theme.pillRadius
    color: Theme.card
    border.width: Theme.hairline
    border.color: Theme.line
    Accessible.role: Accessible.ToolTip
    Accessible.name: selection.words

    Column {
        id: lines
        anchors.centerIn: parent
        spacing: 1

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: callout.selection.value
            font.pointSize: Theme.caption
            font.weight: Font.Medium
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: callout.selection.time
            font.pointSize: Theme.caption2
            color: Theme.secondary
        }
    }
}
