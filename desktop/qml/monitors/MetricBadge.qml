import QtQuick
import Larkspan
import Larkspan.Bridge

// One figure on a tint of its own colour: its icon, and beside it the figure over its name.
Rectangle {
    id: shape
    required property metricBadge badge

    implicitWidth: content.implicitWidth + 2 * Theme.unit
    implicitHeight: content.implicitHeight + 2 * Theme.narrowGap
    radius: Theme.controlRadius
    color: Qt.alpha(Theme.toneColor(badge.tone), Theme.metricOpacity)

    Row {
        id: content
        anchors.centerIn: parent
        spacing: shape.badge.isTrend ? Theme.halfUnit : Theme.narrowGap

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: shape.badge.icon
            color: Theme.toneColor(shape.badge.tone)
        }
        Column {
            spacing: Theme.hairline

            Label {
                text: shape.badge.value
                font.pointSize: Theme.caption
                font.weight: Font.Bold
                color: Theme.toneColor(shape.badge.tone)
            }
            Label {
                text: shape.badge.label
                font.pointSize: Theme.caption2
                color: Theme.secondary
            }
        }
    }
}
