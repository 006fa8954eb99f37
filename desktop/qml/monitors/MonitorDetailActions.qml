import QtQuick
import Larkspan
import Larkspan.Bridge

ActionCard {
    id: actions
    required property MonitorDetailBridge monitor

    buttons: monitor.buttons
    onPressed: button => monitor.press(button)
}
