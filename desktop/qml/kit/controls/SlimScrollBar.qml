import QtQuick
import QtQuick.Templates as T
import Larkspan

T.ScrollBar {
    id: bar
    implicitWidth: Theme.unit
    padding: 2
    visible: size < 1
    minimumSize: 0.05
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: width / 2
        color: Qt.alpha(Theme.text, bar.pressed ? 0.5 : bar.hovered || bar.active ? 0.35 : 0.18)
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
    }
}
