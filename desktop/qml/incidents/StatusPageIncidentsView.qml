import QtQuick
import Larkspan
import Larkspan.Bridge

ContentArea {
    id: view
    required property IncidentListBridge incidents

    showsContent: incidents.showsList
    placeholder: incidents.placeholder
    onRetried: incidents.refresh()

    CardList {
        anchors.fill: parent
        name: qsTr("Incidents")
        rows: view.incidents.rows
        onPulled: view.incidents.refresh()
        delegate: IncidentRow {
            onClicked: view.incidents.open(row.id)
        }
    }
}
