import QtQuick
import Larkspan
import Larkspan.Bridge

// One figure on a tint of its own colour: its icon, and beside it the figure over its name.
Rectangle {
    id: shape
    required property metricBadge badge
    readonly property real wordsWidth: width - icon.width - content.spacing - 2 * Theme.unit

    implicitWidth: icon.width + content.spacing + Math.max(value.implicitWidth, label.implicitWidth) + 2 * Theme.unit
    implicitHeight: content.implicitHeight + 2 * Theme.narrowGap
    radius: Theme.controlRadius
    color: Qt.alpha(Theme.toneColor(badge.tone), Theme.metricOpacity)

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
        Column {
            spacing: Theme.hairline

            Label {
                id: value
                width: Math.min(implicitWidth, shape.wordsWidth)
                text: shape.badge.value
                font.pointSize: Theme.caption
                font.weight: Font.Bold
                color: Theme.toneColor(shape.badge.tone)
            }
            Label {
                id: label
                width: Math.min(implicitWidth, shape.wordsWidth)
                text: shape.badge.label
                font.pointSize: Theme.caption2
                color: Theme.secondary
            }
        }
    }
}
