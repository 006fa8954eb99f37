import QtQuick
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// A monitor's metrics for a day: the graph, the figures and the regions.
Column {
    id: panel
    required property MetricsPanelBridge metrics
    // Whether the row is the current one, so that its controls can be reached with the keyboard.
    required property bool isCurrent

    spacing: Theme.unit
    // What stands above is at a distance already.
    topPadding: graph.visible ? graph.headroom - Theme.unit : 0

    LatencyGraph {
        id: graph
        visible: curve.isShown
        width: parent.width
        activeFocusOnTab: panel.isCurrent || activeFocus
        curve: panel.metrics.curve
        selection: panel.metrics.selection
        onSelected: position => panel.metrics.selectLatency(position)
    }
    Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
    Repeater {
        model: panel.metrics.figures
        MetricLine {
            required property metricRow modelData
            width: panel.width
            row: modelData
        }
    }
    Rectangle {
        visible: panel.metrics.regions.length > 0
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
    Label {
        visible: panel.metrics.regions.length > 0
        text: qsTr("Region States")
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
    Repeater {
        model: panel.metrics.regions
        RegionLine {
            required property regionRow modelData
            width: panel.width
            row: modelData
        }
    }
    Label {
        visible: text !== ""
        width: parent.width
        text: panel.metrics.moreRegions
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
}
