import QtQuick
import QtQuick.Templates as T
import Larkspan

// Shows which control the keyboard acts on.
Rectangle {
    id: ring
    required property T.Control control

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth
    visible: ring.control.visualFocus
    radius: Theme.controlRadius + Theme.focusWidth
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.focus
}
