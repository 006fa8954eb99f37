import QtQuick
import Larkspan
import Larkspan.Bridge

// Marks the item with the focus for users of the keyboard. Only one item has the focus, so only one ring is shown.
Rectangle {
    required property Item holder
    // Whether it is shown to users of the pointer, too.
    property bool isAlwaysShown: false

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth
    visible: holder.activeFocus && (isAlwaysShown || InputHand.isKeyboard)
    radius: Theme.controlRadius + Theme.focusWidth
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.focus
}
