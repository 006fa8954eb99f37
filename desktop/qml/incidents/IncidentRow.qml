import QtQuick
import Larkspan
import Larkspan.Bridge

CardRow {
    id: delegate
    required property incidentRow row

    name: row.title
    description: row.status.text

    contentItem: Item {
        implicitHeight: words.implicitHeight

        Rectangle {
            id: dot
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.recordDotSize
            height: width
            radius: width / 2
            color: Theme.toneColor(delegate.row.tone)
        }
        Column {
            id: words
            anchors.left: dot.right
            anchors.leftMargin: Theme.unit + Theme.halfUnit
            anchors.right: pill.left
            anchors.rightMargin: Theme.unit + Theme.halfUnit
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.halfUnit / 2

            MarqueeText {
                width: parent.width
                layoutHeight: Theme.titleHeight
                text: delegate.row.title
                font.weight: Font.DemiBold
            }
            // The date goes below the severity where a large font leaves no room beside it.
            Flow {
                width: parent.width
                spacing: Theme.narrowGap

                Pill {
                    id: severity
                    visible: delegate.row.severity.text !== ""
                    pill: delegate.row.severity
                    pointSize: Theme.caption2
                    isBold: true
                    tint: Theme.badgeOpacity
                    sidePadding: Theme.halfUnit
                }
                Label {
                    height: severity.visible ? Math.max(implicitHeight, severity.height) : implicitHeight
                    text: delegate.row.date
                    font.pointSize: Theme.caption
                    color: Theme.secondary
                }
            }
        }
        Pill {
            id: pill
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            pill: delegate.row.status
        }
    }
}
