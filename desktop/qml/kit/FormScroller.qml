import QtQuick
import QtQuick.Templates as T
import Larkspan

// What is filled in from top to bottom; it scrolls where there is no room for all of it, and whatever the keyboard reaches
// is to be seen.
Flickable {
    id: scroller
    default property alias content: column.data
    // No wider than this; the rest is margin on both sides.
    property real widest: Infinity
    readonly property Item focusedItem: Window.activeFocusItem

    contentHeight: column.implicitHeight + 2 * Theme.margin
    boundsBehavior: Flickable.StopAtBounds
    clip: true
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

    Column {
        id: column
        x: Math.max(Theme.margin, Math.round((scroller.width - scroller.widest) / 2))
        y: Theme.margin
        width: scroller.width - 2 * x
        spacing: 2 * Theme.unit
    }

    T.ScrollBar.vertical: SlimScrollBar {}
}
