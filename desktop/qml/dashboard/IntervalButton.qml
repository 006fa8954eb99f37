import QtQuick
import Larkspan.Bridge.Workspace
import Larkspan.Kit

// Opens the choice of the interval at which the account is polled.
MenuButton {
    id: button
    required property DashboardBridge dashboard

    symbol: "timer"
    help: qsTr("Refresh Interval")
    file: Qt.resolvedUrl("IntervalMenu.qml")
    given: ({ dashboard: button.dashboard })
}
