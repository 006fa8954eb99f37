import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Monitors
import Larkspan.Kit

ActionCard {
    id: actions
    required property MonitorDetailBridge monitor

    buttons: monitor.buttons
    onPressed: button => monitor.press(button)
}
