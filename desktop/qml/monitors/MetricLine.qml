import QtQuick
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// A figure of the panel: its label at the left, its value at the right.
PairedLine {
    id: line
    required property metricRow row

    label: Label {
        text: line.row.label
        font.pointSize: Theme.subheadline
        color: Theme.secondary
    }
    value: Label {
        text: line.row.value
        font.pointSize: Theme.subheadline
        font.weight: Font.Bold
        color: Theme.toneColor(line.row.tone)
    }
}
