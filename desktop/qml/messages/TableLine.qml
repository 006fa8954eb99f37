import QtQuick
import Larkspan.Bridge.Messages
import Larkspan.Kit

// A row of a table, or the divider below its headers. The columns are as wide as their longest text; a table that does
// not fit is scrolled sideways, all its rows at once.
Flickable {
    id: line
    required property markdownRow row
    required property TableOffsets offsets
    // The width of each column, which is that of its widest text when drawn.
    required property list<real> widths
    readonly property real tableWidth: {
        let sum = 0
        for (let column = 0; column < row.columns; ++column) sum += widthOf(column) + (column > 0 ? cells.spacing : 0)
        return sum
    }
    signal followed(cell: int, href: string)

    height: row.isDivider ? Theme.hairline : cells.implicitHeight
    contentWidth: tableWidth
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.HorizontalFlick
    clip: true
    onContentXChanged: if (moving) offsets.move(row.table, contentX)
    onRowChanged: follow(row.table)
    onContentWidthChanged: follow(row.table)

    function widthOf(column: int): real {
        return widths[column] ?? 0
    }
    function follow(table: int) {
        if (table === row.table && !moving) contentX = Math.max(0, Math.min(offsets.placeOf(table), contentWidth - width))
    }
    // Scrolls by half of the visible width; returns whether there was anything to scroll.
    function step(direction: int): bool {
        const furthest = contentWidth - width
        if (!visible || furthest <= 0) return false
        offsets.move(row.table, Math.max(0, Math.min(contentX + direction * width / 2, furthest)))
        return true
    }
    Connections {
        target: line.offsets
        function onMoved(table) { line.follow(table) }
    }

    Rectangle {
        visible: line.row.isDivider
        width: line.tableWidth
        height: Theme.hairline
        color: Theme.line
    }
    Row {
        id: cells
        spacing: 2 * Theme.unit

        Repeater {
            model: line.row.isDivider ? 0 : line.row.columns

            Item {
                id: cell
                required property int index

                width: line.widthOf(index)
                height: text.height

                MessageText {
                    id: text
                    property markdownText none
                    width: cell.width
                    words: cell.index < line.row.cells.length ? line.row.cells[cell.index] : none
                    font.pointSize: line.row.isTableHeader ? Theme.caption : Theme.subheadline
                    font.weight: line.row.isTableHeader ? Font.DemiBold : Font.Normal
                    color: line.row.isTableHeader ? Theme.secondary : Theme.text
                    onFollowed: href => line.followed(cell.index, href)
                }
            }
        }
    }
}
