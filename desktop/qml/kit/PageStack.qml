import QtQuick
import Larkspan

// The window's screens, one over the other: the first child is the one at the bottom, the pages pushed over it follow.
// The focus is always with one of them.
FocusScope {
    focus: true

    Keys.onPressed: event => {
        InputHand.isKeyboard = true
        event.accepted = false
    }
    TapHandler {
        onPressedChanged: if (pressed) InputHand.isKeyboard = false
    }

    // A sheet that closes leaves the focus with nobody, and what had it before may be gone meanwhile.
    Window.onActiveFocusItemChanged: takeFocusBack()
    function takeFocusBack() {
        if (Window.activeFocusItem !== Window.contentItem) return
        forceActiveFocus(Qt.PopupFocusReason)
        const holder = Window.activeFocusItem
        if (!holder.visible || !holder.enabled) holder.nextItemInFocusChain().forceActiveFocus(Qt.PopupFocusReason)
    }
}
