import QtQuick
import Larkspan
import Larkspan.Bridge.Components

// The editable values of a component.
Column {
    id: editor
    required property ComponentDetailBridge detail

    spacing: Theme.margin

    Column {
        width: parent.width
        spacing: Theme.unit

        GroupBox {
            width: parent.width
            title: qsTr("Name")
            hasCard: false
        }
        TextEntry {
            width: parent.width
            name: qsTr("Name")
            placeholderText: qsTr("Component Name")
            Component.onCompleted: {
                text = editor.detail.editedName
                forceActiveFocus(Qt.OtherFocusReason)
            }
            onTextEdited: editor.detail.editName(text)
        }
    }
    Column {
        width: parent.width
        spacing: Theme.unit

        GroupBox {
            width: parent.width
            title: qsTr("Status")
            hasCard: false
        }
        SegmentedPicker {
            width: parent.width
            name: qsTr("Status")
            choosesTab: false
            segments: editor.detail.statuses
            selected: editor.detail.selectedStatus
            onChosen: segment => editor.detail.chooseStatus(segment)
        }
    }
    Column {
        width: parent.width
        spacing: Theme.unit

        GroupBox {
            width: parent.width
            title: qsTr("Description")
            hasCard: false
        }
        TextBox {
            width: parent.width
            name: qsTr("Description")
            Component.onCompleted: show(editor.detail.editedDescription)
            onEdited: text => editor.detail.editDescription(text)
        }
    }
    GroupBox {
        visible: editor.detail.showsGroupPicker
        width: parent.width
        title: qsTr("Group")

        ChoicePicker {
            width: parent.width
            text: qsTr("Group")
            choices: editor.detail.groups
            selected: editor.detail.selectedGroup
            onChosen: id => editor.detail.chooseGroup(id)
        }
    }
}
