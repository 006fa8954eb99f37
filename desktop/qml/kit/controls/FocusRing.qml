import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Marks the item with the focus for users of the keyboard. Only one item has the focus, so only one ring is shown.
// A gap separates it from an item of its own colour.
Rectangle {
    required property Item holder

    anchors.fill: parent
    anchors.margins: -Theme.focusWidth - Theme.focusGap
    visible: holder.activeFocus && InputHand.isKeyboard
    radius: Theme.controlRadius + Theme.focusWidth + Theme.focusGap
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.focus
}
