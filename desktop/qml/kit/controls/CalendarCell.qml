import QtQuick
import Larkspan
import Larkspan.Bridge

// A day of a calendar. The day from which the keys move has the calendar's focus.
Item {
    id: cell
    required property calendarDay day
    property bool isCurrent: false
    signal triggered

    onIsCurrentChanged: if (isCurrent) focus = true
    Component.onCompleted: if (isCurrent) focus = true
    Accessible.role: Accessible.Cell
    Accessible.name: day.name
    Accessible.selectable: true
    Accessible.selected: day.isChosen
    Accessible.focusable: true
    Accessible.onPressAction: triggered()

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width, parent.height * 1.25) - Theme.halfUnit
        height: parent.height - Theme.halfUnit
        radius: Theme.controlRadius
        color: cell.day.isChosen ? Theme.accent : tap.pressed ? Theme.pressed : pointer.hovered ? Theme.hover : "transparent"
        border.width: cell.day.isToday && !cell.day.isChosen ? Theme.hairline : 0
        border.color: Theme.accentOnCard

        FocusRing {
            holder: cell
        }
    }
    Label {
        anchors.fill: parent
        text: cell.day.number
        horizontalAlignment: Text.AlignHCenter
        font.weight: cell.day.isToday ? Font.DemiBold : Font.Normal
        color: cell.day.isChosen ? Theme.accentText : cell.day.isToday ? Theme.accentOnCard
            : cell.day.isInMonth ? Theme.text : Theme.secondary
        Accessible.ignored: true
    }
    HoverHandler {
        id: pointer
    }
    TapHandler {
        id: tap
        onTapped: {
            cell.triggered()
            cell.forceActiveFocus(Qt.MouseFocusReason)
        }
    }
}
