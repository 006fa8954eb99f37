import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Scrolls content with the keyboard, and makes visible what the focus reaches in it.
QtObject {
    id: scrolling
    required property Flickable flickable
    // Whether it scrolls to what the pointer presses; not where texts are selected with the pointer.
    property bool followsPointer: true
    property bool followsFocus: true
    // The margin around what is made visible.
    property real margin: Theme.margin
    readonly property real begin: flickable.originY - flickable.topMargin
    readonly property real end: Math.max(begin, flickable.originY + flickable.contentHeight + flickable.bottomMargin - flickable.height)
    readonly property bool isScrollable: flickable.height > 0 && end - begin >= 1
    readonly property Item focusedItem: flickable.Window.activeFocusItem

    onFocusedItemChanged: follow()
    function follow() {
        if (followsFocus && (followsPointer || InputHand.isKeyboard)) reveal(focusedItem)
    }
    function isWithin(item: Item, whole: Item): bool {
        let ancestor = item
        while (ancestor && ancestor !== whole) ancestor = ancestor.parent
        return ancestor !== null
    }
    // The largest of the groups around the item that fits; the item itself if there is none.
    function groupOf(item: Item): Item {
        let whole = item
        for (let group = item.parent; group && group !== flickable.contentItem; group = group.parent) {
            if (group instanceof RevealedColumn && group.height <= flickable.height) whole = group
        }
        return whole
    }
    function reveal(item: Item) {
        if (flickable.height <= 0 || item instanceof ListReader || !isWithin(item, flickable.contentItem)) return
        // A press must not move what is pressed further than needed.
        const whole = InputHand.isKeyboard ? groupOf(item) : item
        const free = item instanceof CardRow ? 0
            : whole === item ? margin : Math.min(margin, (flickable.height - whole.height) / 2)
        const top = whole.mapToItem(flickable.contentItem, 0, 0).y - free
        const bottom = top + whole.height + 2 * free
        if (top < flickable.contentY) move(top)
        else if (bottom > flickable.contentY + flickable.height) move(Math.min(top, bottom - flickable.height))
    }
    // Returns whether the key scrolls.
    function take(event: KeyEvent): bool {
        const target = {
            [Qt.Key_Up]: flickable.contentY - Theme.rowHeight,
            [Qt.Key_Down]: flickable.contentY + Theme.rowHeight,
            [Qt.Key_PageUp]: flickable.contentY - flickable.height + Theme.rowHeight,
            [Qt.Key_PageDown]: flickable.contentY + flickable.height - Theme.rowHeight,
            [Qt.Key_Home]: begin,
            [Qt.Key_End]: end
        }[event.key]
        const isTaken = isScrollable && target !== undefined && event.modifiers === Qt.NoModifier
        if (isTaken) move(target)
        return isTaken
    }
    function move(place: real) {
        flickable.contentY = Math.max(begin, Math.min(place, end))
    }
}
