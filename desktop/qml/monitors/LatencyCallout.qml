import QtQuick
import Larkspan
import Larkspan.Bridge

// The callout of the selected sample of a latency graph.
Rectangle {
    id: callout
    required property latencyGraph graph
    readonly property bool floats: true

    implicitWidth: lines.implicitWidth + 2 * Theme.itemGap
    implicitHeight: lines.implicitHeight + 2 * Theme.halfUnit
    radius: Theme.pillRadius
    color: Theme.card
    border.width: Theme.hairline
    border.color: Theme.line
    Accessible.role: Accessible.ToolTip
    Accessible.name: graph.words

    Column {
        id: lines
        anchors.centerIn: parent
        spacing: 1

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: callout.graph.value
            font.pointSize: Theme.caption
            font.weight: Font.Medium
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: callout.graph.time
            font.pointSize: Theme.caption2
            color: Theme.secondary
        }
    }
}
