import QtQuick
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// The callout of the selected sample of a latency graph.
Surface {
    id: callout
    required property selectedLatency selection
    // The height with both lines.
    readonly property real mostHeight: value.implicitHeight + lines.spacing + time.implicitHeight + 2 * Theme.halfUnit

    implicitWidth: lines.implicitWidth + 2 * Theme.itemGap
    implicitHeight: lines.implicitHeight + 2 * Theme.halfUnit
    Accessible.role: Accessible.ToolTip
    Accessible.name: selection.words

    Column {
        id: lines
        anchors.centerIn: parent
        spacing: 1

        Label {
            id: value
            anchors.horizontalCenter: parent.horizontalCenter
            text: callout.selection.value
            font.pointSize: Theme.caption
            font.weight: Font.Medium
        }
        Label {
            id: time
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: callout.selection.time
            font.pointSize: Theme.caption2
            color: Theme.secondary
        }
    }
}
