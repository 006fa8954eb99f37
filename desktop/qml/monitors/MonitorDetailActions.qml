import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Bridge.Monitors

ActionCard {
    id: actions
    required property MonitorDetailBridge monitor

    buttons: monitor.buttons
    onPressed: button => monitor.press(button)
}
