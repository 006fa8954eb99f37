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

    PopupLoader {
        isShown: view.monitors.alert !== ""
        sourceComponent: ErrorAlert {
            text: view.monitors.alert
            // While it fades another may be raised, which is not to go with it.
            onAboutToHide: view.monitors.dismissAlert()
        }
    }
}
