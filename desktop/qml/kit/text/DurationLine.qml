import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The duration of a record.
PairedLine {
    id: line
    required property string duration

    indent: Theme.iconSize + Theme.unit
    label: Label {
        text: qsTr("Duration")
        font.pointSize: Theme.subheadline
        color: Theme.secondary
    }
    value: Label {
        text: line.duration
        font.pointSize: Theme.subheadline
    }

    Symbol {
        y: Math.round(line.middle - height / 2)
        width: Theme.smallIconSize
        height: width
        name: "timer"
        color: Theme.secondary
    }
}
