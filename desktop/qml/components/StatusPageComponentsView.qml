import QtQuick
import Larkspan
import Larkspan.Bridge

ContentArea {
    id: view
    required property ComponentListBridge components

    showsContent: components.showsList
    placeholder: components.placeholder
    onRetried: components.refresh()

    CardList {
        anchors.fill: parent
        name: qsTr("Components")
        rows: view.components.rows
        onPulled: view.components.refresh()
        delegate: ComponentRow {
            onClicked: if (isPressable) view.components.open(row.id)
        }
    }

    AlertLoader {
        alert: view.components.alert
        onDismissed: view.components.dismissAlert()
    }
}
