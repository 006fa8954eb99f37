import QtQuick
import QtQuick.Templates as T
import Larkspan

// Things one below the other that scroll where the window is small. Whatever the keyboard reaches is brought into sight.
Flickable {
    id: scroller
    default property alias content: column.data
    property alias spacing: column.spacing
    // No wider than this; the rest is margin on both sides.
    property real widest: Infinity
    readonly property real wantedHeight: column.implicitHeight + 2 * Theme.margin

    contentHeight: wantedHeight
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    readonly property Item focusedItem: Window.activeFocusItem
    onFocusedItemChanged: reveal(focusedItem)
    function reveal(item: Item) {
        let ancestor = item
        while (ancestor && ancestor !== column) ancestor = ancestor.parent
        if (!ancestor) return
        const top = item.mapToItem(contentItem, 0, 0).y - Theme.margin
        const bottom = top + item.height + 2 * Theme.margin
        if (top < contentY) contentY = Math.max(0, top)
        else if (bottom > contentY + height) contentY = Math.min(contentHeight, bottom) - height
    }

    Keys.onPressed: event => {
        const page = height - Theme.rowHeight
        const step = {
            [Qt.Key_Up]: -Theme.rowHeight,
            [Qt.Key_Down]: Theme.rowHeight,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_PageDown]: page
        }[event.key]
        event.accepted = step !== undefined
        if (event.accepted) contentY = Math.max(0, Math.min(contentHeight - height, contentY + step))
    }

    Column {
        id: column
        readonly property real margin: Math.max(Theme.margin, Math.round((scroller.width - scroller.widest) / 2))
        x: margin
        y: Theme.margin
        width: scroller.width - 2 * margin
        spacing: 2 * Theme.unit
    }

    T.ScrollBar.vertical: SlimScrollBar {}
}
