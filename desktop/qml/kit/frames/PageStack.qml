import QtQuick
import Larkspan

// The window's screens, one over the other: the first child is the one at the bottom, the pages pushed over it follow.
// The focus is always with one of them.
FocusScope {
    id: stack
    focus: true

    // A sheet that closes leaves the focus with nobody, and what had it before may be gone meanwhile.
    Window.onActiveFocusItemChanged: takeFocusBack()
    function takeFocusBack() {
        if (Window.activeFocusItem !== Window.contentItem) return
        forceActiveFocus(Qt.PopupFocusReason)
        const holder = Window.activeFocusItem
        if (!holder.visible || !holder.enabled) holder.nextItemInFocusChain().forceActiveFocus(Qt.PopupFocusReason)
    }

    // What scrolls takes the focus when its screen comes up, and has no use for it where all of it is in sight, which is
    // known once it is laid out.
    function passIdleFocusOn() {
        const holder = Window.activeFocusItem
        const list = holder as CardList
        const takesFocus = list ? list.hasRowToMeet || list.handOn()
            : holder instanceof ListReader ? holder.isStop : !(holder instanceof ScrollingColumn) || holder.isStop
        if (takesFocus || !holder.visible) return
        let screen = holder.parent
        while (screen && !(screen instanceof ScreenFrame)) screen = screen.parent
        // While an order runs, the button that began it waits for its focus.
        if (screen && !screen.isBusy) screen.nextItemInFocusChain().forceActiveFocus(Qt.OtherFocusReason)
    }
    Connections {
        target: stack.Window.window
        function onAfterAnimating() { stack.passIdleFocusOn() }
    }
}
