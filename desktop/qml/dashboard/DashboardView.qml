import QtQuick
import Larkspan.Bridge.Menu
import Larkspan.Bridge.Workspace
import Larkspan.Kit
import Larkspan.Menu

ScreenFrame {
    id: view
    required property DashboardBridge dashboard
    required property StatusMenuBridge menu

    title: dashboard.windowTitle
    isTitleDispensable: true
    status: dashboard.status
    // While there is no list, the content shows the progress.
    hidesStatusProgress: !dashboard.showsList
    isStatusMovable: dashboard.showsList
    showsContent: dashboard.showsList
    placeholder: dashboard.placeholder
    onRetried: dashboard.refresh()
    onSettingsRequested: dashboard.openSettings()

    leading: [
        ToolbarButton {
            symbol: "gearshape"
            help: qsTr("Settings")
            onClicked: view.dashboard.openSettings()
        },
        IntervalButton {
            dashboard: view.dashboard
        }
    ]
    trailing: [
        ToolbarButton {
            symbol: "arrow.clockwise"
            help: qsTr("Refresh Now")
            enabled: view.dashboard.isRefreshEnabled
            onClicked: view.dashboard.refresh()
        },
        StatusMenuButton {
            menu: view.menu
        }
    ]

    CardList {
        id: list
        anchors.fill: parent
        name: view.dashboard.listHeading
        rows: view.dashboard.rows
        selectedRow: view.dashboard.selectedRow
        reserve: notice.visible ? notice.height + Theme.margin : 0
        onPulled: view.dashboard.refresh()

        above: Column {
            spacing: 2 * Theme.unit + Theme.halfUnit
            bottomPadding: Theme.unit

            HeadlineCard {
                width: parent.width
                headline: view.dashboard.headline
            }
            Item {
                width: parent.width
                implicitHeight: Math.max(heading.implicitHeight, status.implicitHeight)

                Label {
                    id: heading
                    anchors.verticalCenter: parent.verticalCenter
                    text: view.dashboard.listHeading
                    font.pointSize: Theme.subheadline
                    font.weight: Font.DemiBold
                    color: Theme.secondary
                    Accessible.role: Accessible.Heading
                }
                MarkerLine {
                    id: status
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !view.hasRoomForStatus
                    marker: view.status
                    maximumWidth: parent.width - heading.implicitWidth - Theme.headerGap
                }
            }
        }
        delegate: StatusPageRow {
            onClicked: view.dashboard.openPage(row.id)
        }
    }

    RefreshFailureNotice {
        id: notice
        dashboard: view.dashboard
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.margin
        // At the end of the column, however wide the window is.
        anchors.rightMargin: list.rightMargin
    }

    Shortcut {
        sequences: ["F5", "Ctrl+R"]
        autoRepeat: false
        enabled: view.visible && view.dashboard.isRefreshEnabled
        onActivated: view.dashboard.refresh()
    }
}
