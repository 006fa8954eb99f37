import QtQuick
import QtQuick.Templates as T
import Larkspan

// Things one below the other, which scroll where there is no room for all. Whatever the keyboard reaches is to be seen;
// with the focus on the column itself, the arrows, the page keys, Home and End scroll.
Flickable {
    id: scroller
    // What a screen reader says of the column, where it can have the focus.
    property string name
    // No wider than this; the rest is margin on both sides.
    property real widest: Infinity
    default property alias content: column.data
    property alias spacing: column.spacing
    readonly property bool isScrollable: contentHeight > height
    readonly property Item focusedItem: Window.activeFocusItem

    contentHeight: column.implicitHeight + 2 * Theme.margin
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    Accessible.role: Accessible.Pane
    Accessible.name: name
    Accessible.ignored: name === ""
    Accessible.focusable: activeFocusOnTab
    onFocusedItemChanged: reveal(focusedItem)
    onHeightChanged: reveal(focusedItem)

    function reveal(item: Item) {
        let ancestor = item
        while (ancestor && ancestor !== column) ancestor = ancestor.parent
        if (!ancestor || height <= 0) return
        const top = item.mapToItem(contentItem, 0, 0).y - Theme.margin
        const bottom = top + item.height + 2 * Theme.margin
        if (top < contentY) contentY = Math.max(0, top)
        else if (bottom > contentY + height) contentY = Math.min(contentHeight, bottom) - height
    }

    Keys.onPressed: event => {
        const target = {
            [Qt.Key_Up]: contentY - Theme.rowHeight,
            [Qt.Key_Down]: contentY + Theme.rowHeight,
            [Qt.Key_PageUp]: contentY - height + Theme.rowHeight,
            [Qt.Key_PageDown]: contentY + height - Theme.rowHeight,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: contentHeight
        }[event.key]
        event.accepted = activeFocus && isScrollable && target !== undefined && event.modifiers === Qt.NoModifier
        if (event.accepted) contentY = Math.max(0, Math.min(target, contentHeight - height))
    }

    Column {
        id: column
        width: Math.min(scroller.width - 2 * Theme.margin, scroller.widest)
        x: Math.round((scroller.width - width) / 2)
        y: Theme.margin
        spacing: 2 * Theme.unit
    }
    Rectangle {
        parent: scroller
        anchors.fill: parent
        visible: scroller.activeFocus && scroller.isScrollable && InputHand.isKeyboard
        color: "transparent"
        border.width: Theme.focusWidth
        border.color: Theme.focus
    }

    T.ScrollBar.vertical: SlimScrollBar {}
}
