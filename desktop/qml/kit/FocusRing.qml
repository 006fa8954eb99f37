import QtQuick
import Larkspan

// Shows which control the keyboard acts on.
Rectangle {
    required property Item control

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth
    visible: control.visualFocus ?? control.activeFocus
    radius: Theme.controlRadius + Theme.focusWidth
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.focus
}
