import QtQuick
import Larkspan
import Larkspan.Bridge.Workspace

// How often the account is looked at.
KitMenu {
    id: intervals
    required property DashboardBridge dashboard

    Repeater {
        model: intervals.dashboard.refreshIntervalLabels
        KitMenuItem {
            required property int index
            required property string modelData
            text: modelData
            onTriggered: intervals.dashboard.chooseRefreshInterval(index)
        }
    }
}
