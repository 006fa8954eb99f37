import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The days of a month. The arrow keys choose the neighbouring day, Home and End the ends of the week, the page keys the
// same day of the neighbouring month, with Shift of the neighbouring year; the wheel over the month shows other months
// while the calendar has the focus, and otherwise scrolls the surrounding content.
RevealedColumn {
    id: calendar
    required property string name
    required property DateTimePickerBridge picker
    readonly property real cellWidth: width / 7
    readonly property bool hasKeyboard: days.activeFocus || previous.activeFocus || next.activeFocus

    spacing: Theme.tablePadding

    Item {
        width: parent.width
        height: Theme.calendarBarHeight

        ToolbarButton {
            id: previous
            // In the middle of the first column.
            x: Math.round((calendar.cellWidth - width) / 2)
            width: height
            height: parent.height
            symbol: "chevron.left"
            help: qsTr("Previous Month")
            Accessible.description: calendar.name
            onClicked: calendar.picker.browseMonths(-1)
        }
        Label {
            anchors.fill: parent
            anchors.leftMargin: calendar.cellWidth
            anchors.rightMargin: calendar.cellWidth
            text: calendar.picker.month
            font.weight: Font.DemiBold
            fontSizeMode: Text.HorizontalFit
            minimumPointSize: Theme.caption2
            horizontalAlignment: Text.AlignHCenter
        }
        ToolbarButton {
            id: next
            x: parent.width - previous.x - width
            width: height
            height: parent.height
            symbol: "chevron.right"
            help: qsTr("Next Month")
            Accessible.description: calendar.name
            onClicked: calendar.picker.browseMonths(1)
        }
        WheelHandler {
            enabled: calendar.hasKeyboard
            property real turned: 0
            onWheel: event => {
                const notch = 120
                turned += event.angleDelta.y
                const count = Math.trunc(turned / notch)
                turned -= count * notch
                if (count !== 0) calendar.picker.browseMonths(-count)
            }
        }
    }
    Row {
        Repeater {
            model: calendar.picker.weekdays
            Label {
                required property string modelData
                width: calendar.cellWidth
                text: modelData
                font.pointSize: Theme.caption2
                color: Theme.secondary
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    FocusScope {
        id: days
        // Each week runs from left to right, so the index in the list is the index in the grid.
        readonly property int current: {
            const all = calendar.picker.days
            const chosen = all.findIndex(day => day.isChosen)
            return chosen >= 0 ? chosen : all.findIndex(day => day.isInMonth)
        }

        width: parent.width
        height: 6 * Theme.calendarCellHeight
        activeFocusOnTab: true
        Accessible.role: Accessible.Table
        Accessible.name: qsTr("%1 date").arg(calendar.name)
        Accessible.description: calendar.picker.date

        function take(event: KeyEvent): bool {
            const picker = calendar.picker
            switch (event.key) {
            case Qt.Key_Left: picker.moveDays(-1); return true
            case Qt.Key_Right: picker.moveDays(1); return true
            case Qt.Key_Up: picker.moveDays(-7); return true
            case Qt.Key_Down: picker.moveDays(7); return true
            case Qt.Key_Home: picker.moveToBeginOfWeek(); return true
            case Qt.Key_End: picker.moveToEndOfWeek(); return true
            case Qt.Key_PageUp: picker.moveMonths(event.modifiers & Qt.ShiftModifier ? -12 : -1); return true
            case Qt.Key_PageDown: picker.moveMonths(event.modifiers & Qt.ShiftModifier ? 12 : 1); return true
            case Qt.Key_Space:
            case Qt.Key_Return:
            case Qt.Key_Enter: picker.chooseDay(picker.days[current].id); return true
            }
            return false
        }
        Keys.onPressed: event => {
            event.accepted = !(event.modifiers & (Qt.AltModifier | Qt.ControlModifier)) && take(event)
        }

        Repeater {
            model: calendar.picker.days.length
            CalendarCell {
                required property int index
                x: index % 7 * calendar.cellWidth
                y: Math.floor(index / 7) * Theme.calendarCellHeight
                width: calendar.cellWidth
                height: Theme.calendarCellHeight
                day: calendar.picker.days[index]
                isCurrent: index === days.current
                onTriggered: calendar.picker.chooseDay(day.id)
            }
        }
    }
}
