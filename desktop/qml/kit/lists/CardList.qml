import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A list of `CardRow`s on one card; only the visible rows exist. Keys: arrows, Home, End, the page keys, Return and
// Space; typed letters move to the next row that starts with them.
ListView {
    id: list
    required property ListModel rows
    required property string name
    // Content above the rows, which scrolls with them.
    property Component above: null
    // Content below the rows.
    property Component below: null
    // The largest width; the rest is margin on both sides.
    property real widest: Theme.columnWidth * Theme.scale
    // The row that is kept visible; -1 for none.
    property int selectedRow: -1
    // The height of what floats over the end of the list; the current row and the last one are scrolled clear of it.
    property real reserve: 0
    // Whether keys move between rows; if not, they scroll the list.
    property bool walksRows: true
    readonly property bool isStop: scrolling.isScrollable && !hasRowToMeet
    readonly property bool hasRowToMeet: walksRows && count > 0
    // What stands above the rows is made when it is first seen.
    property bool wasSeen: false
    property ListReader reader: null
    signal pulled

    model: rows
    currentIndex: walksRows ? 0 : -1
    focus: true
    clip: true
    topMargin: Theme.margin
    bottomMargin: Theme.margin + reserve
    leftMargin: Math.max(Theme.margin, Math.round((width - widest) / 2))
    rightMargin: leftMargin
    onLeftMarginChanged: contentX = -leftMargin
    reuseItems: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.DragOverBounds
    highlightMoveDuration: Theme.quick
    // By default, the highlight would grow slowly with a tall row, and be painted all the while.
    highlightResizeDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: name

    Component.onCompleted: if (visible) wasSeen = true
    onVisibleChanged: if (visible) wasSeen = true
    onWalksRowsChanged: keepToStops()
    onCurrentItemChanged: keepToStops()
    onCountChanged: keepToStops()
    // Not if a button in a row has lost the focus to the action that it started: the button gets it back.
    onActiveFocusChanged: if (scrolling.focusedItem === list) handOn()
    onReserveChanged: if (InputHand.isKeyboard && currentItem && scrolling.isWithin(scrolling.focusedItem, currentItem)) clearReserve()
    onSelectedRowChanged: if (selectedRow >= 0) moveTo(selectedRow)
    onDragEnded: if (verticalOvershoot < -Theme.pullDistance) list.pulled()

    // The content above the rows may grow and push them down; a list that is at its top stays there.
    property bool isScrolled: false
    onContentYChanged: isScrolled = contentY > originY
    header: Item {
        width: list.width - list.leftMargin - list.rightMargin
        height: above.height
        onHeightChanged: if (!list.isScrolled) list.contentY = list.originY - list.topMargin

        // Has the focus for the list as a whole; the list itself would pass it to the item that had it last. It
        // precedes all content of the list, and covers the list's visible area.
        ListReader {
            id: reader
            Component.onCompleted: list.reader = reader
            x: -list.leftMargin
            y: list.contentY - parent.y
            width: list.width
            height: list.height
            name: list.name
            isStop: list.isStop
            Keys.onPressed: event => { event.accepted = scrolling.take(event) }
        }
        Loader {
            id: above
            width: parent.width
            active: list.wasSeen
            sourceComponent: list.above
        }
    }

    footer: Loader {
        width: list.width - list.leftMargin - list.rightMargin
        sourceComponent: list.below
    }

    // One card under all rows, however many of them exist. While they scroll, the card does not move, except for its
    // ends, so that a frame redraws only what moves.
    Rectangle {
        readonly property real begin: list.originY + (list.headerItem ? list.headerItem.height : 0) - list.contentY
        readonly property real end: list.originY + list.contentHeight - (list.footerItem ? list.footerItem.height : 0) - list.contentY
        readonly property real beyond: 2 * Theme.cardRadius

        parent: list
        z: -1
        x: list.leftMargin
        y: Math.max(begin, -beyond)
        width: list.width - list.leftMargin - list.rightMargin
        height: Math.min(end, list.height + beyond) - y
        visible: list.count > 0 && height > 0
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line
    }

    ScrollBarLoader {
        flickable: list
    }

    ReadingOrder {
        container: list.contentItem
        last: list.footerItem
    }

    Scrolling {
        id: scrolling
        flickable: list
        margin: Theme.unit
        followsPointer: false
    }
    // Makes the item with the focus visible.
    function follow() {
        scrolling.follow()
    }
    // Returns whether there was an item to pass the focus to.
    function handOn(): bool {
        const next = hasRowToMeet ? currentItem : isStop ? reader : null
        if (next) next.forceActiveFocus(Qt.OtherFocusReason)
        return next !== null
    }
    // After a refresh, the current row may be one at which the keyboard does not stop.
    function keepToStops() {
        const stop = walksRows && count > 0 ? stopNear(Math.max(0, currentIndex), 1) : -1
        if (stop === currentIndex) return
        const wasAtTop = !isScrolled
        currentIndex = stop
        // The view moves to the current row, and away from a heading above it.
        if (wasAtTop && stop === rows.stopFrom(0, 1)) {
            forceLayout()
            contentY = originY - topMargin
        }
    }
    function stopNear(row: int, direction: int): int {
        const stop = rows.stopFrom(row, direction)
        return stop < 0 ? rows.stopFrom(row, -direction) : stop
    }

    // Only a row with the focus: a second press on a button that the first press disabled is not meant for the row.
    function press(row: CardRow) {
        if (row && row.activeFocus) row.clicked()
    }
    Keys.onReturnPressed: press(currentItem as CardRow)
    Keys.onEnterPressed: press(currentItem as CardRow)
    Keys.onPressed: event => {
        event.accepted = currentItem !== null && scrolling.isWithin(scrolling.focusedItem, currentItem)
            && (typeAhead.take(event) || goTo(event.key))
    }
    function goTo(key: int): bool {
        const page = Math.max(1, Math.floor(height / (currentItem ? currentItem.height : Theme.rowHeight)) - 1)
        const target = {
            [Qt.Key_Up]: rows.stopFrom(currentIndex - 1, -1),
            [Qt.Key_Down]: rows.stopFrom(currentIndex + 1, 1),
            [Qt.Key_Home]: stopNear(0, 1),
            [Qt.Key_End]: stopNear(count - 1, -1),
            [Qt.Key_PageUp]: stopNear(Math.max(0, currentIndex - page), -1),
            [Qt.Key_PageDown]: stopNear(Math.min(count - 1, currentIndex + page), 1)
        }[key]
        if (target === undefined) return false
        if (target >= 0) moveTo(target)
        return true
    }
    // Works for any distance: the list's own function ends at the estimated place of the row.
    function moveTo(row: int) {
        currentIndex = row
        // Content above or below the rows is shown as far as the row stays visible.
        if (row === rows.stopFrom(0, 1)) {
            positionViewAtBeginning()
            contentY = originY - topMargin
        }
        if (row === rows.stopFrom(count - 1, -1)) {
            positionViewAtEnd()
            contentY = Math.max(originY - topMargin, originY + contentHeight + bottomMargin - height)
        }
        positionViewAtIndex(row, ListView.Contain)
        clearReserve()
    }
    function clearReserve() {
        if (reserve <= 0 || !currentItem) return
        const behind = currentItem.y + currentItem.height + Theme.unit - (contentY + height - reserve)
        if (behind > 0) scrolling.move(Math.min(contentY + behind, Math.max(contentY, currentItem.y)))
    }

    TypeAhead {
        id: typeAhead
        rows: list.rows
        currentRow: list.currentIndex
        onMeant: row => list.moveTo(row)
        onActivated: list.press(list.currentItem as CardRow)
    }
}
