import QtQuick
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// A monitor's state as seen from one region.
PairedLine {
    id: line
    required property regionRow row

    indent: dot.width + Theme.unit
    label: Label {
        text: line.row.name
        font.pointSize: Theme.caption
        maximumLineCount: 1
    }
    value: Label {
        text: line.row.average
        font.pointSize: Theme.caption
        color: Theme.secondary
    }

    StatusDot {
        id: dot
        y: Math.round(line.middle - height / 2)
        tone: line.row.tone
        word: line.row.state
    }
}
