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
    signal pulled

    model: rows
    focus: true
    activeFocusOnTab: true
    clip: true
    topMargin: Theme.margin
    bottomMargin: Theme.margin + reserve
    leftMargin: Math.max(Theme.margin, Math.round((width - widest) / 2))
    rightMargin: leftMargin
    onLeftMarginChanged: contentX = -leftMargin
    reuseItems: true
    keyNavigationEnabled: true
    boundsBehavior: Flickable.DragOverBounds
    highlightMoveDuration: Theme.quick
    // At its own pace it would grow with a row of many points for as long as that takes, and be painted all the while.
    highlightResizeDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: name

    onSelectedRowChanged: if (selectedRow >= 0) moveTo(selectedRow)
    onDragEnded: if (verticalOvershoot < -Theme.pullDistance) list.pulled()

    // What stands above the rows may grow and push them down; a list at its top stays there.
    property bool isScrolled: false
    onContentYChanged: isScrolled = contentY > originY
    header: Loader {
        width: list.width - list.leftMargin - list.rightMargin
        sourceComponent: list.above
        onHeightChanged: if (!list.isScrolled) list.contentY = list.originY - list.topMargin
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

    // A press in a list reaches no handler behind it.
    TapHandler {
        onPressedChanged: if (pressed) InputHand.isKeyboard = false
    }

    // Only a row that has the keyboard: the second press of a button in it that the first has disabled is not for the row.
    function press(row: CardRow) {
        if (row && row.activeFocus) row.clicked()
    }
    Keys.onReturnPressed: press(currentItem as CardRow)
    Keys.onEnterPressed: press(currentItem as CardRow)
    Keys.onPressed: event => {
        InputHand.isKeyboard = true
        event.accepted = typeAhead.take(event) || goTo(event.key)
    }
    function goTo(key: int): bool {
        const page = Math.max(1, Math.floor(height / (currentItem ? currentItem.height : Theme.rowHeight)) - 1)
        const target = {
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1,
            [Qt.Key_PageUp]: Math.max(0, currentIndex - page),
            [Qt.Key_PageDown]: Math.min(count - 1, currentIndex + page)
        }[key]
        if (target === undefined) return false
        moveTo(target)
        return true
    }
    // However far away the row is: what the list does by itself ends where it guessed the row to be.
    function moveTo(row: int) {
        currentIndex = row
        // What stands above or below the rows is shown as far as that leaves the row in sight.
        if (row === 0) {
            positionViewAtBeginning()
            contentY = originY - topMargin
        }
        if (row === count - 1) {
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
