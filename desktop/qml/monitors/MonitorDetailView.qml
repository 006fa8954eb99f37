import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Bridge.Monitors

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

    ScrollingColumn {
        anchors.fill: parent
        widest: Theme.columnWidth * Theme.scale
        spacing: Theme.margin
        name: view.title
        focus: true
        takesFocus: true

        RecordHeader {
            width: parent.width
            spacing: Theme.unit
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

            Row {
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
        Flow {
            width: parent.width
            spacing: Theme.unit

            Repeater {
                model: view.monitor.buttons.length
                ActionCommand {
                    required property int index
                    button: view.monitor.buttons[index]
                    onClicked: view.monitor.press(button.id)
                }
            }
        }
    }
}
