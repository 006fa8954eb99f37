import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Kit

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
            // The whole box and its title stay visible together in a small window.
            height: Math.min(implicitHeight, Math.max(Theme.textBoxHeight * Theme.scale, editor.height * 0.7))
            name: qsTr("Message")
            isTight: true
            onEdited: text => editor.maintenance.editMessage(text)
        }
    }
    ScheduledTimes {
        width: parent.width
        start: editor.maintenance.editedScheduledFor
        startSymbol: "calendar.badge.clock"
        end: editor.maintenance.editedScheduledUntil
        endSymbol: "calendar.badge.minus"
        length: editor.maintenance.editedLength
    }
}
