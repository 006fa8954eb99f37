import QtQuick
import Larkspan
import Larkspan.Bridge

// Of when the data is, or that it is being fetched.
Row {
    id: status
    required property DashboardBridge dashboard

    spacing: Theme.unit

    BusyIndicator {
        anchors.verticalCenter: parent.verticalCenter
        visible: status.dashboard.statusShowsProgress
        width: Math.round(Theme.iconSize * 0.8)
        height: width
        name: status.dashboard.statusText
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: status.dashboard.statusShowsWarning
        width: Math.round(Theme.iconSize * 0.8)
        height: width
        name: "exclamationmark.triangle.fill"
        color: Theme.orange
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: status.dashboard.statusText
        font.pointSize: Theme.caption
        color: status.dashboard.statusShowsWarning ? Theme.text : Theme.secondary
    }
}
