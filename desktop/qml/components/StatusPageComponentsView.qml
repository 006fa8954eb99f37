import QtQuick
import Larkspan
import Larkspan.Bridge

ListArea {
    id: view
    required property StatusPageComponentsBridge components

    list: components

    CardList {
        anchors.fill: parent
        topMargin: Theme.tabsGap
        name: qsTr("Components")
        rows: view.components.rows
        onPulled: view.components.refresh()
        delegate: ComponentRow {
            onClicked: if (isPressable) view.components.open(row.id)
        }
    }
}
