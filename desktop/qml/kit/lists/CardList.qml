import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// A list of `CardRow`s on one card: as many rows exist as are seen. It is worked with arrows, Home, End, the page keys,
// Return and Space; letters typed move to the next row that begins with them.
ListView {
    id: list
    required property ListModel rows
    required property string name
    // What stands above the rows and scrolls with them.
    property Component above: null
    // What stands below them.
    property Component below: null
    // No wider than this; the rest is margin on both sides.
    property real widest: Infinity
    // The row that is to be seen; -1 for none.
    property int selectedRow: -1
    // What floats over the end of the list, so that the last row can be scrolled clear of it.
    property real reserve: 0
    // Where no row does anything, the keyboard scrolls the list as a whole.
    property bool walksRows: true
    readonly property bool isStop: scrolling.isScrollable && !hasRowToMeet
    readonly property bool hasRowToMeet: walksRows && count > 0
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
    // At its own pace it would grow with a row of many points for as long as that takes, and be painted all the while.
    highlightResizeDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: name

    onWalksRowsChanged: keepToStops()
    onCurrentItemChanged: keepToStops()
    onCountChanged: keepToStops()
    // Not where a button in a row has lost it to the order that it began: that one waits for it.
    onActiveFocusChanged: if (scrolling.focusedItem === list) handOn()
    onSelectedRowChanged: if (selectedRow >= 0) moveTo(selectedRow)
    onDragEnded: if (verticalOvershoot < -Theme.pullDistance) list.pulled()

    // What stands above the rows may grow and push them down; a list at its top stays there.
    property bool isScrolled: false
    onContentYChanged: isScrolled = contentY > originY
    header: Item {
        width: list.width - list.leftMargin - list.rightMargin
        height: above.height
        onHeightChanged: if (!list.isScrolled) list.contentY = list.originY - list.topMargin

        // Has the keyboard for the list as a whole, which itself would hand it to what had it last. It comes before all
        // that stands in the list, and is where the list is seen.
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
            sourceComponent: list.above
        }
    }

    footer: Loader {
        width: list.width - list.leftMargin - list.rightMargin
        sourceComponent: list.below
    }

    // One card under all rows, however many of them exist. While they scroll it stands still, only its ends follow them:
    // so a frame draws what moves and not the whole window.
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

    T.ScrollBar.vertical: SlimScrollBar {
        parent: list.parent
        anchors.right: list.right
        anchors.top: list.top
        anchors.bottom: list.bottom
    }

    ReadingOrder {
        container: list.contentItem
    }

    Scrolling {
        id: scrolling
        flickable: list
        margin: Theme.unit
        followsPointer: false
    }
    // Says whether it had somebody to hand the keyboard on to.
    function handOn(): bool {
        const next = hasRowToMeet ? currentItem : isStop ? reader : null
        if (next) next.forceActiveFocus(Qt.OtherFocusReason)
        return next !== null
    }
    // What a refresh puts in the place of the current row may be passed by.
    function keepToStops() {
        const stop = walksRows && count > 0 ? stopNear(Math.max(0, currentIndex), 1) : -1
        if (stop !== currentIndex) currentIndex = stop
    }
    function stopNear(row: int, direction: int): int {
        const stop = rows.stopFrom(row, direction)
        return stop < 0 ? rows.stopFrom(row, -direction) : stop
    }

    // Only a row that has the keyboard: the second press of a button in it that the first has disabled is not for the row.
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
    // However far away the row is: what the list does by itself ends where it guessed the row to be.
    function moveTo(row: int) {
        currentIndex = row
        // What stands above or below the rows is shown as far as that leaves the row in sight.
        if (row === rows.stopFrom(0, 1)) {
            positionViewAtBeginning()
            contentY = originY - topMargin
        }
        if (row === rows.stopFrom(count - 1, -1)) {
            positionViewAtEnd()
            contentY = Math.max(originY - topMargin, originY + contentHeight + bottomMargin - height)
        }
        positionViewAtIndex(row, ListView.Contain)
    }

    TypeAhead {
        id: typeAhead
        rows: list.rows
        currentRow: list.currentIndex
        onMeant: row => list.moveTo(row)
        onActivated: list.press(list.currentItem as CardRow)
    }
}
