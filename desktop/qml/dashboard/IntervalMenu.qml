import QtQuick
import Larkspan.Bridge.Workspace
import Larkspan.Kit

// How often the account is looked at.
WordMenu {
    id: intervals
    required property DashboardBridge dashboard

    words: dashboard.refreshIntervalLabels
    onChosen: place => intervals.dashboard.chooseRefreshInterval(place)
}
