import QtQuick
import Larkspan.Bridge.Monitors
import Larkspan.Kit

ListArea {
    id: view
    required property StatusPageMonitorsBridge monitors

    list: monitors

    CardList {
        anchors.fill: parent
        topMargin: Theme.tabsGap
        name: qsTr("Monitors")
        rows: view.monitors.rows
        onPulled: view.monitors.refresh()
        delegate: MonitorRow {
            metrics: view.monitors.metricsOf(row.id)
            onDisclosed: view.monitors.toggleMetrics(row.id)
            onCommanded: button => view.monitors.press(row.id, button)
            onClicked: view.monitors.open(row.id)
        }
    }
}
