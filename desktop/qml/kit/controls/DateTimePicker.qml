import QtQuick
import Larkspan
import Larkspan.Bridge

// The choice of a moment: the chosen one, and below it a calendar with a clock beside it, or under it if there is no
// room.
Column {
    id: box
    required property string name
    required property DateTimePickerBridge picker

    spacing: Theme.unit + Theme.halfUnit

    Item {
        readonly property real momentWidth: date.implicitWidth + Theme.unit + time.implicitWidth
        readonly property bool isNarrow: caption.implicitWidth + 2 * Theme.unit + momentWidth > width

        width: parent.width
        height: moment.y + moment.height

        Label {
            id: caption
            text: box.name
        }
        Flow {
            id: moment
            width: Math.min(parent.width, Math.ceil(parent.momentWidth))
            x: parent.isNarrow ? 0 : parent.width - width
            y: parent.isNarrow ? caption.height : 0
            spacing: Theme.unit

            Label {
                id: date
                text: box.picker.date
            }
            Label {
                id: time
                text: box.picker.time
                color: Theme.secondary
            }
        }
    }
    Flow {
        width: parent.width
        spacing: 2 * Theme.unit

        Calendar {
            width: Math.min(parent.width, 7 * Theme.calendarCellWidth)
            name: box.name
            picker: box.picker
        }
        Column {
            topPadding: Theme.unit
            spacing: Theme.unit

            ClockEntry {
                name: box.name
                picker: box.picker
            }
            Label {
                text: box.picker.zone
                font.pointSize: Theme.caption
                color: Theme.secondary
            }
        }
    }
}
