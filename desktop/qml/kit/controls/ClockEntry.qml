import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Hours and minutes, typed or changed step by step; on a clock of twelve hours also the half of the day.
Row {
    id: clock
    required property string name
    required property DateTimePickerBridge picker

    spacing: Theme.halfUnit

    TimeField {
        name: qsTr("%1 hour").arg(clock.name)
        value: clock.picker.hour
        pattern: clock.picker.hourPattern
        onTyped: digits => { if (clock.picker.typeHour(digits)) minute.forceActiveFocus(Qt.TabFocusReason) }
        onStepped: (count, isFar) => clock.picker.moveHours(isFar ? 6 * count : count)
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: ":"
        Accessible.ignored: true
    }
    TimeField {
        id: minute
        name: qsTr("%1 minute").arg(clock.name)
        value: clock.picker.minute
        pattern: clock.picker.minutePattern
        onTyped: digits => clock.picker.typeMinute(digits)
        onStepped: (count, isFar) => clock.picker.moveMinutes(isFar ? 10 * count : count)
    }
    CommandButton {
        visible: text !== ""
        isSmall: true
        text: clock.picker.dayHalf
        Accessible.description: qsTr("%1 half of the day").arg(clock.name)
        onClicked: clock.picker.switchDayHalf()
    }
}
