import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Start and end of a maintenance, side by side if there is room for two calendars, and under the end how long it is.
Grid {
    id: times
    required property DateTimePickerBridge start
    required property DateTimePickerBridge end
    required property marker length
    property string startSymbol
    property string endSymbol
    readonly property real columnWidth: columns === 1 ? width : (width - spacing) / 2

    columns: width < Theme.twoColumnsWidth ? 1 : 2
    spacing: 2 * Theme.unit

    GroupBox {
        width: times.columnWidth
        title: qsTr("Scheduled Start")
        symbol: times.startSymbol

        DateTimePicker {
            width: parent.width
            name: qsTr("Start")
            picker: times.start
        }
    }
    RevealedColumn {
        spacing: Theme.halfUnit

        GroupBox {
            width: times.columnWidth
            title: qsTr("Scheduled End")
            symbol: times.endSymbol

            DateTimePicker {
                width: parent.width
                name: qsTr("End")
                picker: times.end
            }
        }
        IconLabel {
            width: times.columnWidth
            symbol: times.length.symbol
            text: times.length.text
            tone: times.length.tone
            pointSize: Theme.subheadline
        }
    }
}
