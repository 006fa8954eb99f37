import QtQuick
import Larkspan.Bridge.Monitors
import Larkspan.Kit

// The opened part of a monitor's row: its metrics, or what is shown in their place.
Column {
    id: expanded
    required property MonitorRowBridge metrics
    required property bool isCurrent

    spacing: Theme.unit

    Loader {
        visible: active
        width: parent.width
        active: expanded.metrics.showsPanel
        sourceComponent: MetricsPanel {
            metrics: expanded.metrics.panel
            isCurrent: expanded.isCurrent
        }
    }
    IconLabel {
        visible: text !== ""
        width: parent.width
        symbol: expanded.metrics.instead.symbol
        text: expanded.metrics.instead.text
        tone: expanded.metrics.instead.tone
        showsProgress: expanded.metrics.instead.showsProgress
        pointSize: Theme.caption
    }
    CommandButton {
        // Below the sentence, where that begins.
        x: Theme.iconSize + Theme.unit
        visible: expanded.metrics.offersRetry
        activeFocusOnTab: expanded.isCurrent || activeFocus
        isSmall: true
        text: qsTr("Retry")
        onClicked: expanded.metrics.retry()
    }
}
