import QtQuick
import Larkspan
import Larkspan.Bridge

// The choice of what an event affects: the whole page, or a component of a group and one of its monitors.
GroupBox {
    id: group
    required property EventFormBridge form

    title: qsTr("Affected Components")

    ChoicePicker {
        width: parent.width
        text: qsTr("Component Group")
        choices: group.form.groups
        selected: group.form.selectedGroup
        onChosen: id => group.form.chooseGroup(id)
    }
    ChoicePicker {
        width: parent.width
        visible: group.form.showsComponents
        enabled: group.form.isComponentPickerEnabled
        text: qsTr("Component")
        choices: group.form.components
        selected: group.form.selectedComponent
        onChosen: id => group.form.chooseComponent(id)
    }
    IconLabel {
        width: parent.width
        visible: group.form.isLoadingMonitors
        showsProgress: true
        text: qsTr("Loading monitors…")
    }
    ChoicePicker {
        width: parent.width
        visible: group.form.showsMonitors
        text: qsTr("Monitor")
        choices: group.form.monitors
        selected: group.form.selectedMonitor
        onChosen: id => group.form.chooseMonitor(id)
    }
    IconLabel {
        width: parent.width
        visible: group.form.isLoadingComponents
        showsProgress: true
        text: qsTr("Loading components…")
    }
    Label {
        width: parent.width
        visible: !group.form.isLoadingComponents
        text: group.form.selectionHint
        font.pointSize: Theme.caption
        color: Theme.secondary
        wrapMode: Text.Wrap
    }
}
