import QtQuick
import Larkspan
import Larkspan.Bridge

// A moment of a record: its label and its time, which is placed below if there is no room beside the label.
Item {
    id: line
    required property timelineRow row
    readonly property bool isNarrow: label.x + label.implicitWidth + Theme.unit + moment.implicitWidth > width

    implicitHeight: isNarrow ? moment.y + moment.height : label.implicitHeight

    Symbol {
        anchors.verticalCenter: label.verticalCenter
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
        id: moment
        x: line.isNarrow ? label.x : line.width - width
        y: line.isNarrow ? label.height : 0
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
