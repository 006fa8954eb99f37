import QtQuick
import Larkspan
import Larkspan.Bridge

// How often the account is looked at.
WordMenu {
    id: intervals
    required property DashboardBridge dashboard

    words: dashboard.refreshIntervalLabels
    onChosen: place => intervals.dashboard.chooseRefreshInterval(place)
}
