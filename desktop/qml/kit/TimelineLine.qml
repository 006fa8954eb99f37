import QtQuick
import Larkspan
import Larkspan.Bridge

// A moment in the life of a record: what it was, and when.
Item {
    id: line
    required property timelineRow row

    implicitHeight: label.implicitHeight

    Symbol {
        id: mark
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.smallIconSize
        height: width
        name: line.row.symbol
        color: Theme.secondary
    }
    Label {
        id: label
        x: Theme.iconSize + Theme.unit
        text: line.row.label
        font.pointSize: Theme.subheadline
        color: Theme.secondary
    }
    Row {
        anchors.right: parent.right
        spacing: Theme.unit

        Label {
            text: line.row.date
            font.pointSize: Theme.subheadline
        }
        Label {
            visible: text !== ""
            text: line.row.time
            font.pointSize: Theme.subheadline
            color: Theme.secondary
        }
    }
}
