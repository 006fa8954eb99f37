import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The choice of a moment: its date, its time beside the time's label, or below that if there is no room, and a calendar.
Column {
    id: box
    required property string name
    required property DateTimePickerBridge picker

    spacing: Theme.halfUnit

    RevealedColumn {
        width: parent.width
        spacing: Theme.halfUnit

        Item {
            width: parent.width
            height: date.height

            Label {
                id: caption
                text: box.name
            }
            Label {
                id: date
                anchors.right: parent.right
                width: parent.width - caption.width - Theme.unit
                text: box.picker.date
                color: Theme.secondary
                horizontalAlignment: Text.AlignRight
                wrapMode: Text.Wrap
            }
        }
        Item {
            id: line
            readonly property real roomBesideClock: width - clock.width - Theme.unit
            readonly property bool isNarrow: Math.max(time.implicitWidth, zone.implicitWidth) > roomBesideClock

            width: parent.width
            height: isNarrow ? words.height + Theme.halfUnit + clock.height : Math.max(words.height, clock.height)

            Grid {
                id: words
                y: line.isNarrow ? 0 : Math.round((parent.height - height) / 2)
                columns: time.implicitWidth + columnSpacing + zone.implicitWidth > (line.isNarrow ? line.width : line.roomBesideClock) ? 1 : 2
                columnSpacing: Theme.narrowGap
                verticalItemAlignment: Grid.AlignVCenter

                Label {
                    id: time
                    text: qsTr("Time")
                }
                Label {
                    id: zone
                    text: box.picker.zone
                    font.pointSize: Theme.caption
                    color: Theme.secondary
                }
            }
            ClockEntry {
                id: clock
                x: line.isNarrow ? 0 : parent.width - width
                y: line.isNarrow ? words.height + Theme.halfUnit : Math.round((parent.height - height) / 2)
                name: box.name
                picker: box.picker
            }
        }
    }
    Calendar {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.calendarMostWidth)
        name: box.name
        picker: box.picker
    }
}
