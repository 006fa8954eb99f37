import QtQuick
import Larkspan
import Larkspan.Bridge

Sheet {
    id: sheet
    required property CreateIncidentBridge form

    title: qsTr("New Incident")
    closesByItself: false
    onCloseRequested: form.requestClose()
    isBusy: form.isBusy
    busyText: form.busyText
    alert: form.alert
    onAlertDismissed: form.dismissAlert()

    barLeading: CommandButton {
        text: qsTr("Cancel")
        enabled: sheet.form.isCancelEnabled
        onClicked: sheet.form.cancel()
    }
    barItems: CommandButton {
        text: qsTr("Save")
        isProminent: true
        enabled: sheet.form.isSaveEnabled
        onClicked: sheet.form.save()
    }

    GroupBox {
        width: parent.width
        title: qsTr("Title")
        hasCard: false
    }
    TextEntry {
        width: parent.width
        focus: true
        name: qsTr("Title")
        placeholderText: qsTr("Incident Title")
        onTextEdited: sheet.form.editTitle(text)
    }
    GroupBox {
        width: parent.width
        title: qsTr("Message (Optional)")
        hasCard: false
    }
    TextBox {
        width: parent.width
        name: qsTr("Message (Optional)")
        onEdited: text => sheet.form.editMessage(text)
    }
    GroupBox {
        width: parent.width
        title: qsTr("Affected Components")

        ChoicePicker {
            width: parent.width
            text: qsTr("Component Group")
            choices: sheet.form.groups
            selected: sheet.form.selectedGroup
            onChosen: id => sheet.form.chooseGroup(id)
        }
        ChoicePicker {
            width: parent.width
            visible: sheet.form.showsComponents
            enabled: sheet.form.isComponentPickerEnabled
            text: qsTr("Component")
            choices: sheet.form.components
            selected: sheet.form.selectedComponent
            onChosen: id => sheet.form.chooseComponent(id)
        }
        IconLabel {
            width: parent.width
            visible: sheet.form.isLoadingMonitors
            showsProgress: true
            text: qsTr("Loading monitors…")
        }
        ChoicePicker {
            width: parent.width
            visible: sheet.form.showsMonitors
            text: qsTr("Monitor")
            choices: sheet.form.monitors
            selected: sheet.form.selectedMonitor
            onChosen: id => sheet.form.chooseMonitor(id)
        }
        IconLabel {
            width: parent.width
            visible: sheet.form.isLoadingComponents
            showsProgress: true
            text: qsTr("Loading components…")
        }
        Label {
            width: parent.width
            visible: !sheet.form.isLoadingComponents
            text: sheet.form.selectionHint
            font.pointSize: Theme.caption
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
    GroupBox {
        width: parent.width
        title: qsTr("Notifications")

        Toggle {
            width: parent.width
            text: qsTr("Notify subscribers")
            isOn: sheet.form.notifySubscribers
            onClicked: sheet.form.notifySubscribers = !sheet.form.notifySubscribers
        }
        Label {
            width: parent.width
            text: qsTr("Subscribers receive the initial incident update by email and any configured channels.")
            font.pointSize: Theme.caption
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }

    PopupLoader {
        isShown: sheet.form.showsDiscardConfirmation
        onDismissed: sheet.form.keepEditing()
        sourceComponent: ConfirmDialog {
            confirmation: sheet.form.discardConfirmation
            onConfirmed: sheet.form.discardChanges()
        }
    }
}
