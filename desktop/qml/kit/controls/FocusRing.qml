import QtQuick
import Larkspan
import Larkspan.Bridge

// Shows what the keyboard acts on, to those who use it. There is one holder of the keyboard, so there is one ring.
Rectangle {
    required property Item holder

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth
    visible: holder.activeFocus && InputHand.isKeyboard
    radius: Theme.controlRadius + Theme.focusWidth
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.focus
}
