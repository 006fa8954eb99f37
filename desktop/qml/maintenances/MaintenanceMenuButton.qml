import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Kit

// The menu of a maintenance's other actions.
MenuButton {
    id: button
    required property MaintenanceDetailBridge maintenance

    symbol: "ellipsis.circle"
    help: qsTr("More Actions")
    file: Qt.resolvedUrl("MaintenanceMenu.qml")
    given: ({ maintenance: button.maintenance })
}
