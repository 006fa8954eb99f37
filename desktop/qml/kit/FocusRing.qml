import QtQuick
import Larkspan

// Shows which control the keyboard acts on.
Rectangle {
    required property bool isShown

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth
    visible: isShown
    radius: Theme.controlRadius + Theme.focusWidth
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.focus
}
