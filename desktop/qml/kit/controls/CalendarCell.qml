import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A day of a calendar: today in a ring, the chosen one filled, those of the neighbouring months smaller. The day from
// which the keys move has the calendar's focus.
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
        width: Math.min(parent.width, parent.height * 1.5) - 2 * Theme.hairline
        height: parent.height - 2 * Theme.hairline
        radius: Theme.pillRadius
        color: cell.day.isChosen ? (cell.enabled ? Theme.accent : Theme.disabledFill) : tap.pressed ? Theme.pressed : pointer.hovered ? Theme.hover : "transparent"
        border.width: cell.day.isToday && !cell.day.isChosen ? Theme.hairline : 0
        border.color: Theme.accentOnCard

        Rectangle {
            anchors.fill: parent
            anchors.margins: 2 * Theme.hairline
            visible: cell.day.isToday && cell.day.isChosen
            radius: Theme.pillRadius - anchors.margins
            color: "transparent"
            border.width: Theme.hairline
            border.color: Theme.accentText
        }
        FocusRing {
            holder: cell
        }
    }
    Label {
        anchors.fill: parent
        text: cell.day.number
        horizontalAlignment: Text.AlignHCenter
        font.pointSize: cell.day.isInMonth ? Theme.body : Theme.caption
        font.weight: cell.day.isToday ? Font.DemiBold : Font.Normal
        color: !cell.enabled ? Theme.disabledText : cell.day.isChosen ? Theme.accentText : cell.day.isToday ? Theme.accentOnCard
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
