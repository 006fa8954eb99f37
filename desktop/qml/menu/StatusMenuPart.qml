import QtQuick

// Rows of the menu that stand together, and are so few that each has its item.
Column {
    id: part
    property alias model: rows.model
    readonly property alias count: rows.count
    // The place of the first row in the whole menu.
    property int first: 0
    required property int current
    signal entered(place: int)
    signal triggered(place: int)

    width: parent ? parent.width : 0

    // The greatest height up to this one that cuts a row, but no separator, in its middle; 0 if there is none.
    function lastCut(height: real): real {
        for (let at = rows.count - 1; at >= 0; --at) {
            const row = rows.itemAt(at) as StatusMenuRow
            if (row && !row.row.isSeparator && row.y + 0.3 * row.height <= height)
                return Math.min(height, Math.floor(row.y + 0.5 * row.height))
        }
        return 0
    }

    Repeater {
        id: rows
        StatusMenuRow {
            width: part.width
            isCurrent: part.first + index === part.current
            onEntered: part.entered(part.first + index)
            onTriggered: part.triggered(part.first + index)
        }
    }
}
