import QtQuick
import Larkspan
import Larkspan.Bridge.Maintenances

// The editable values of a maintenance.
ScrollingColumn {
    id: editor
    required property MaintenanceDetailBridge maintenance

    widest: Theme.columnWidth * Theme.scale
    Component.onCompleted: {
        entry.text = maintenance.editedTitle
        box.show(maintenance.editedMessage)
        entry.forceActiveFocus(Qt.OtherFocusReason)
    }

    TitledField {
        width: parent.width
        title: qsTr("Title")
        symbol: "pencil"

        TextEntry {
            id: entry
            width: parent.width
            focus: true
            name: qsTr("Title")
            placeholderText: qsTr("Maintenance Title")
            onTextEdited: editor.maintenance.editTitle(text)
        }
    }
    TitledField {
        width: parent.width
        title: qsTr("Message")
        symbol: "doc.text"

        TextBox {
            id: box
            width: parent.width
            name: qsTr("Message")
            onEdited: text => editor.maintenance.editMessage(text)
        }
    }
    GroupBox {
        width: parent.width
        title: qsTr("Scheduled Start")
        symbol: "calendar.badge.clock"

        DateTimePicker {
            width: parent.width
            name: qsTr("Start")
            picker: editor.maintenance.editedScheduledFor
        }
    }
    GroupBox {
        width: parent.width
        title: qsTr("Scheduled End")
        symbol: "calendar.badge.minus"

        DateTimePicker {
            width: parent.width
            name: qsTr("End")
            picker: editor.maintenance.editedScheduledUntil
        }
    }
}
