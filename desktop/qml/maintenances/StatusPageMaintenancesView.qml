import QtQuick
import Larkspan
import Larkspan.Bridge

ContentArea {
    id: view
    required property MaintenanceListBridge maintenances

    showsContent: maintenances.showsList
    placeholder: maintenances.placeholder
    hasBoldTitle: false
    onRetried: maintenances.refresh()

    CardList {
        anchors.fill: parent
        name: qsTr("Maintenances")
        rows: view.maintenances.rows
        onPulled: view.maintenances.refresh()
        delegate: MaintenanceRow {
            onClicked: view.maintenances.open(row.id)
        }
    }
}
