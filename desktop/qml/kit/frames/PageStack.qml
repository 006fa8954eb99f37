import QtQuick
import Larkspan.Kit

// The window's screens, one over the other: the first child is the one at the bottom, the pages pushed over it follow.
// The focus is always with one of them.
FocusScope {
    id: stack
    focus: true

    // After a sheet closes, no item has the focus, and the item that had it before may be gone.
    Window.onActiveFocusItemChanged: takeFocusBack()
    function takeFocusBack() {
        if (Window.activeFocusItem !== Window.contentItem) return
        forceActiveFocus(Qt.PopupFocusReason)
        const holder = Window.activeFocusItem
        if (!holder.visible || !holder.enabled) holder.nextItemInFocusChain().forceActiveFocus(Qt.PopupFocusReason)
    }

    // Scrolling content takes the focus when its screen opens, but does not need it if it fits, which is known only
    // after layout.
    function passIdleFocusOn() {
        const holder = Window.activeFocusItem
        const list = holder as CardList
        const takesFocus = list ? list.hasRowToMeet || list.handOn()
            : holder instanceof ListReader ? holder.isStop : !(holder instanceof ScrollingColumn) || holder.isStop
        if (takesFocus || !holder.visible) return
        let screen = holder.parent
        while (screen && !(screen instanceof ScreenFrame)) screen = screen.parent
        // While an action runs, the button that started it waits for its focus.
        if (screen && !screen.isBusy) screen.nextItemInFocusChain().forceActiveFocus(Qt.OtherFocusReason)
    }
    Connections {
        target: stack.Window.window
        function onAfterAnimating() { stack.passIdleFocusOn() }
    }
}
