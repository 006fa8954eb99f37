import QtQuick
import Larkspan.Bridge.Messages
import Larkspan.Kit

// A row of a message, with markup that the program has made of the message's text. Return asks about its links, one
// after the other, and the arrows scroll a table sideways.
CardRow {
    id: delegate
    required property markdownRow row
    required property TableOffsets offsets
    property list<real> columnWidths
    required property real digitWidth
    property int nextLink: 0
    signal followed(cell: int, href: string)

    name: row.text.plain
    isPressable: false
    hasDivider: false
    topPadding: row.gap + (index === 0 ? 2 * Theme.unit : 0)
    bottomPadding: index === ListView.view.count - 1 ? 2 * Theme.unit + (row.isTable ? Theme.tablePadding : 0) : 0
    // Around the text, since the row is no taller than it.
    ringTop: topPadding - Theme.focusWidth
    ringBottom: bottomPadding - Theme.focusWidth
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    onClicked: {
        if (row.text.linkCount === 0) return
        followed(-1, nextLink % row.text.linkCount)
        nextLink += 1
    }

    Keys.onLeftPressed: event => scroll(-1, event)
    Keys.onRightPressed: event => scroll(1, event)
    function scroll(direction: int, event: KeyEvent) {
        // With Alt the key goes back.
        event.accepted = !(event.modifiers & Qt.AltModifier) && table.step(direction)
    }

    contentItem: Item {
        implicitHeight: delegate.row.isTable ? table.height : text.height

        Rectangle {
            visible: delegate.row.isQuote
            width: Theme.quoteBarWidth
            height: parent.height
            color: Theme.secondary
        }
        FigureText {
            id: mark
            visible: delegate.row.isItem
            isSeen: !delegate.row.continuesPrevious
            text: delegate.row.label
            digitWidth: delegate.digitWidth
            color: Theme.secondary
            font.pointSize: Theme.body
        }
        MessageText {
            id: text
            visible: !delegate.row.isTable
            x: delegate.row.isQuote ? Theme.quoteBarWidth + Theme.quoteGap : delegate.row.isItem ? mark.width + Theme.itemGap : 0
            width: parent.width - x
            words: delegate.row.text
            color: delegate.row.isQuote ? Theme.secondary : Theme.text
            font.pointSize: delegate.row.isTitle ? Theme.title3 : Theme.body
            font.weight: delegate.row.isHeading ? Font.DemiBold : Font.Normal
            horizontalAlignment: delegate.row.isQuote || delegate.row.isItem ? TextEdit.AlignLeft : undefined
            onFollowed: href => delegate.followed(-1, href)
        }
        TableLine {
            id: table
            visible: delegate.row.isTable
            width: parent.width
            row: delegate.row
            offsets: delegate.offsets
            widths: delegate.columnWidths
            onFollowed: (cell, href) => delegate.followed(cell, href)
        }
    }
}
