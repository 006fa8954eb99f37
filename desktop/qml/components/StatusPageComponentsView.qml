import QtQuick
import Larkspan.Bridge.Components
import Larkspan.Kit

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
