import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Monitors
import Larkspan.Kit

// One monitor and its actions.
ScreenFrame {
    id: view
    required property MonitorDetailBridge monitor

    title: monitor.title
    isBusy: monitor.isBusy
    alert: monitor.alert
    onAlertDismissed: monitor.dismissAlert()

    leading: CommandButton {
        text: qsTr("Close")
        onClicked: view.wentBack()
    }

    ActionDock {
        id: dock
        anchors.fill: parent
        scroller: column
        card: actions
        widest: column.widest

        ScrollingColumn {
            id: column
            widest: Theme.columnWidth * Theme.scale
            spacing: Theme.margin
            name: view.title
            focus: true
            takesFocus: true

            RecordHeader {
                width: parent.width
                title: view.monitor.name
                titleHeight: Theme.smallDetailTitleHeight
                pills: view.monitor.pills
            }
            GroupBox {
                width: parent.width
                title: qsTr("Details")
                symbol: "info.circle"
                hasCard: view.monitor.details.length > 0

                Repeater {
                    model: view.monitor.details
                    FactLine {
                        required property fact modelData
                        width: parent.width
                        fact: modelData
                        onFollowed: view.monitor.openURL()
                    }
                }
            }
            GroupBox {
                visible: view.monitor.lastCheck.text !== ""
                width: parent.width
                title: qsTr("Last Check")
                symbol: "clock"

                Flow {
                    width: parent.width
                    spacing: Theme.unit

                    Label {
                        text: view.monitor.lastCheck.text
                    }
                    Label {
                        text: view.monitor.lastCheck.caption
                        color: Theme.secondary
                    }
                }
            }
            MonitorDetailActions {
                visible: dock.isDivided
                width: parent.width
                monitor: view.monitor
                showsFirst: false
            }
        }
        MonitorDetailActions {
            id: actions
            monitor: view.monitor
        }
    }
}
