import QtQuick
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    id: group
    required property KitSamples samples

    title: "Dates"
    remark: "Today has a ring, the choice a fill. Arrows, the page keys, Home and End move from day to day."

    StateHead {
        width: parent.width
    }
    StateRow {
        width: parent.width
        name: "CalendarCell"
        pieceWidth: Theme.calendarCellWidth
        pieceHeight: Theme.calendarCellHeight
        piece: CalendarCell { day: group.samples.day(20, false, false, true) }
        selected: CalendarCell { day: group.samples.day(20, true, false, true) }
    }
    StateRow {
        width: parent.width
        name: "today"
        pieceWidth: Theme.calendarCellWidth
        pieceHeight: Theme.calendarCellHeight
        piece: CalendarCell { day: group.samples.day(20, false, true, true) }
        selected: CalendarCell { day: group.samples.day(20, true, true, true) }
    }
    StateRow {
        width: parent.width
        name: "of another month"
        pieceWidth: Theme.calendarCellWidth
        pieceHeight: Theme.calendarCellHeight
        piece: CalendarCell { day: group.samples.day(20, false, false, false) }
    }
    Row {
        width: parent.width
        spacing: 3 * Theme.unit

        SheetCaption {
            width: parent.width / 7 - 3 * Theme.unit
            text: "DateTimePicker"
        }
        DateTimePicker {
            width: Theme.sheetWidth * Theme.scale
            name: "Start"
            picker: group.samples.picker
        }
    }
}
