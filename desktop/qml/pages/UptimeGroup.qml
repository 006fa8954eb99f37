import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A page's uptime by period; the percentages stand in one column, aligned at their points or, below their periods, at
// the left.
GroupBox {
    id: group
    required property list<fact> lines
    required property string more
    readonly property real captionWidth: most(line => line.ownCaptionWidth)
    readonly property real stackedCaptionX: most(line => line.ownStackedCaptionX)
    readonly property bool isStacked: most(line => line.ownWidth) > width - 4 * Theme.unit - captionWidth

    title: qsTr("Uptime")

    function most(widthOf: var): real {
        let found = 0
        for (let at = 0; at < repeater.count; ++at) {
            const line = repeater.itemAt(at) as UptimeLine
            if (line) found = Math.max(found, widthOf(line))
        }
        return found
    }

    DigitMetrics {
        id: metrics
        font.pointSize: Theme.body
        font.weight: Font.Medium
    }
    Repeater {
        id: repeater
        model: group.lines
        UptimeLine {
            required property fact modelData
            width: parent.width
            fact: modelData
            digitWidth: metrics.digitWidth
            captionWidth: group.captionWidth
            isStacked: group.isStacked
            stackedCaptionX: group.stackedCaptionX
        }
    }
    Label {
        visible: text !== ""
        width: parent.width
        text: group.more
        color: Theme.secondary
    }
}
