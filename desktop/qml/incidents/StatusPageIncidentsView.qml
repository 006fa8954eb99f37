import QtQuick
import Larkspan.Bridge.Incidents
import Larkspan.Kit

ListArea {
    id: view
    required property StatusPageIncidentsBridge incidents

    list: incidents

    CardList {
        anchors.fill: parent
        topMargin: Theme.tabsGap
        name: qsTr("Incidents")
        rows: view.incidents.rows
        onPulled: view.incidents.refresh()
        delegate: IncidentRow {
            onClicked: view.incidents.open(row.id)
        }
    }
}
