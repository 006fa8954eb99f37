import QtQuick
import Larkspan
import Larkspan.Bridge

// A row of a table, whose columns are as wide as their longest text; what has no room is reached by scrolling sideways,
// in all rows of the table at once.
Flickable {
    id: line
    required property markdownRow row
    required property TableOffsets offsets
    // Of each column, as its widest text is drawn.
    required property list<real> widths
    signal followed(cell: int, href: string)

    height: cells.implicitHeight
    contentWidth: cells.implicitWidth
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.HorizontalFlick
    clip: true
    onContentXChanged: if (moving) offsets.move(row.table, contentX)
    onRowChanged: follow(row.table)
    onContentWidthChanged: follow(row.table)

    function follow(table: int) {
        if (table === row.table && !moving) contentX = Math.max(0, Math.min(offsets.placeOf(table), contentWidth - width))
    }
    // By half of what is seen; says whether there was anything to scroll.
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

    Row {
        id: cells
        spacing: 2 * Theme.unit

        Repeater {
            model: line.row.columns

            Item {
                id: cell
                required property int index

                width: Math.ceil(Math.min(line.widths[index] ?? 0, Theme.columnMostWidth * Theme.scale)) + Theme.unit
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
