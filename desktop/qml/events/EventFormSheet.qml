import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The form of a new event: its title, its message and, beside them in a wide sheet, what it affects; below that, the
// fields of one kind of event only.
Sheet {
    id: sheet
    required property EventFormBridge form
    required property string titlePlaceholder
    default property alias further: rest.data

    closesByItself: false
    onCloseRequested: form.requestClose()
    isBusy: form.isBusy
    busyText: form.busyText
    alert: form.alert
    onAlertDismissed: form.dismissAlert()

    barLeading: CommandButton {
        text: qsTr("Cancel")
        enabled: sheet.form.isCloseEnabled
        onClicked: sheet.form.close()
    }
    barItems: CommandButton {
        text: qsTr("Save")
        isProminent: true
        enabled: sheet.form.isSaveEnabled
        onClicked: sheet.form.save()
    }

    Grid {
        id: common
        readonly property real columnWidth: columns === 1 ? width : (width - spacing) / 2

        width: parent.width
        columns: width < Theme.twoColumnsWidth ? 1 : 2
        spacing: 2 * Theme.unit

        Column {
            width: common.columnWidth
            spacing: 2 * Theme.unit

            TitledField {
                width: parent.width
                title: qsTr("Title")

                TextEntry {
                    width: parent.width
                    focus: true
                    name: qsTr("Title")
                    placeholderText: sheet.titlePlaceholder
                    onTextEdited: sheet.form.editTitle(text)
                }
            }
            TitledField {
                width: parent.width
                title: qsTr("Message (Optional)")

                TextBox {
                    width: parent.width
                    name: qsTr("Message (Optional)")
                    onEdited: text => sheet.form.editMessage(text)
                }
            }
        }
        ComponentSelection {
            width: common.columnWidth
            selection: sheet.form.selection
        }
    }
    Column {
        id: rest
        width: parent.width
        spacing: 2 * Theme.unit
    }

    ConfirmLoader {
        isShown: sheet.form.showsDiscardConfirmation
        confirmation: sheet.form.discardConfirmation
        onDismissed: sheet.form.keepEditing()
        onConfirmed: sheet.form.discardChanges()
    }
}
