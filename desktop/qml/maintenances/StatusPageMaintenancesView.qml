import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Kit

ListArea {
    id: view
    required property StatusPageMaintenancesBridge maintenances

    list: maintenances
    hasBoldTitle: false

    CardList {
        anchors.fill: parent
        topMargin: Theme.tabsGap
        name: qsTr("Maintenances")
        rows: view.maintenances.rows
        onPulled: view.maintenances.refresh()
        delegate: MaintenanceRow {
            onClicked: view.maintenances.open(row.id)
        }
    }
}
