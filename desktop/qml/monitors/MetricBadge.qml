import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// One figure on a tint of its own colour: its icon, and beside it the figure over its name; a trend is a word with its
// name beside it.
Rectangle {
    id: shape
    required property metricBadge badge
    readonly property real frameWidth: icon.width + content.spacing + 2 * Theme.unit
    readonly property real besideValue: badge.isTrend ? words.columnSpacing + label.implicitWidth : 0
    readonly property real roomForWords: width - frameWidth

    implicitWidth: frameWidth + Math.max(value.implicitWidth + besideValue, label.implicitWidth)
    implicitHeight: content.implicitHeight + 2 * Theme.narrowGap
    radius: Theme.controlRadius
    color: Theme.tinted(badge.tone, Theme.metricOpacity)

    Row {
        id: content
        anchors.centerIn: parent
        spacing: shape.badge.isTrend ? Theme.halfUnit : Theme.narrowGap

        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: shape.badge.icon
            color: Theme.toneColor(shape.badge.tone)
        }
        Grid {
            id: words
            columns: shape.badge.isTrend ? 2 : 1
            columnSpacing: Theme.halfUnit
            rowSpacing: Theme.hairline
            verticalItemAlignment: Grid.AlignVCenter

            Label {
                id: value
                width: Math.min(implicitWidth, Math.max(0, shape.roomForWords - shape.besideValue))
                text: shape.badge.value
                font.pointSize: Theme.caption
                font.weight: Font.Bold
                color: Theme.toneColor(shape.badge.tone)
            }
            Label {
                id: label
                width: Math.min(implicitWidth, shape.roomForWords)
                text: shape.badge.label
                font.pointSize: Theme.caption2
                color: Theme.secondary
            }
        }
    }
}
