import QtQuick
import Larkspan
import Larkspan.Bridge

// Opens the choice of the interval at which the account is polled.
ToolbarButton {
    id: button
    required property DashboardBridge dashboard

    symbol: "timer"
    help: qsTr("Refresh Interval")
    isMenuOpen: menu.visible
    onClicked: menu.popup(button, 0, button.height + Theme.halfUnit)

    KitMenu {
        id: menu
        onClosed: button.forceActiveFocus(Qt.PopupFocusReason)
        Repeater {
            model: button.dashboard.refreshIntervalLabels
            KitMenuItem {
                required property int index
                required property string modelData
                text: modelData
                onTriggered: button.dashboard.chooseRefreshInterval(index)
            }
        }
    }
}
