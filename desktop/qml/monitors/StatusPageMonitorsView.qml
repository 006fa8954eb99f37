import QtQuick
import Larkspan
import Larkspan.Bridge

ContentArea {
    id: view
    required property MonitorListBridge monitors

    showsContent: monitors.showsList
    placeholder: monitors.placeholder
    onRetried: monitors.refresh()

    CardList {
        anchors.fill: parent
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

    AlertLoader {
        alert: view.monitors.alert
        onDismissed: view.monitors.dismissAlert()
    }
}
