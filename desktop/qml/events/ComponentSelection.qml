import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The choice of what an event affects: the whole page, or a component of a group and one of its monitors.
GroupBox {
    id: group
    required property ComponentSelectionBridge selection

    title: qsTr("Affected Components")

    ChoicePicker {
        width: parent.width
        text: qsTr("Component Group")
        choices: group.selection.groups
        selected: group.selection.selectedGroup
        onChosen: id => group.selection.chooseGroup(id)
    }
    ChoicePicker {
        width: parent.width
        visible: group.selection.showsComponents
        enabled: group.selection.isComponentPickerEnabled
        text: qsTr("Component")
        choices: group.selection.components
        selected: group.selection.selectedComponent
        onChosen: id => group.selection.chooseComponent(id)
    }
    IconLabel {
        width: parent.width
        visible: group.selection.isLoadingMonitors
        showsProgress: true
        text: qsTr("Loading monitors…")
    }
    ChoicePicker {
        width: parent.width
        visible: group.selection.showsMonitors
        text: qsTr("Monitor")
        choices: group.selection.monitors
        selected: group.selection.selectedMonitor
        onChosen: id => group.selection.chooseMonitor(id)
    }
    IconLabel {
        width: parent.width
        visible: group.selection.isLoadingComponents
        showsProgress: true
        text: qsTr("Loading components…")
    }
    Label {
        width: parent.width
        visible: !group.selection.isLoadingComponents
        text: group.selection.hint
        font.pointSize: Theme.caption
        color: Theme.secondary
        wrapMode: Text.Wrap
    }
}
