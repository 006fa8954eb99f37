import QtQuick
import QtQuick.Templates as T
import Larkspan

// The scroll bar of what a `ScrollBarLoader` stands over.
T.ScrollBar {
    id: bar
    required property Flickable flickable

    implicitWidth: Theme.unit
    padding: 2
    visible: size < 1
    minimumSize: 0.05
    Accessible.ignored: true
    Component.onCompleted: flickable.T.ScrollBar.vertical = bar

    contentItem: Rectangle {
        radius: width / 2
        color: Qt.alpha(Theme.text, bar.pressed ? 0.5 : bar.hovered || bar.active ? 0.35 : 0.18)
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
    }
}
