import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A moment of a record: its label and its time.
PairedLine {
    id: line
    required property timelineRow row

    indent: Theme.iconSize + Theme.unit
    label: Label {
        text: line.row.label
        font.pointSize: Theme.subheadline
        color: Theme.secondary
    }
    value: Row {
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

    Symbol {
        y: Math.round(line.middle - height / 2)
        width: Theme.smallIconSize
        height: width
        name: line.row.symbol
        color: Theme.secondary
    }
}
