import QtQuick
import Larkspan.Kit

// The content of a row: a mark, words beside it, and what stands at the row's end. That stands below the words instead
// if it would leave them too little width.
Item {
    id: content
    property alias mark: markPlace.data
    property alias end: endPlace.data
    default property alias words: column.data
    property alias wordsSpacing: column.spacing
    // The width that shows the words uncut, and that of the end.
    property real wordsWidth: Infinity
    property real endWidth: endPlace.width
    property real gap: Theme.unit + Theme.halfUnit
    readonly property real mostWidth: width - column.x
    readonly property real room: mostWidth - gap - endWidth
    readonly property bool isStacked: endWidth > 0 && room < Math.min(wordsWidth, Theme.wordsLeastWidth)

    implicitHeight: isStacked ? column.height + Theme.halfUnit + endPlace.height : Math.max(column.height, endPlace.height)

    Item {
        id: markPlace
        // Beside the first line of words where that is not the middle of the row.
        readonly property real lineHeight: content.isStacked && column.children.length > 0
            ? column.children[0].height : column.height
        y: column.y + Math.round((lineHeight - height) / 2)
        width: childrenRect.width
        height: childrenRect.height
    }
    Column {
        id: column
        x: markPlace.width + Theme.unit + Theme.halfUnit
        y: Math.round((content.height - (content.isStacked ? content.implicitHeight : height)) / 2)
        width: content.isStacked ? content.mostWidth : content.room
    }
    Row {
        id: endPlace
        x: content.isStacked ? column.x : content.width - width
        y: content.isStacked ? column.y + column.height + Theme.halfUnit : Math.round((content.height - height) / 2)
    }
}
