import QtQuick
import Larkspan.Bridge.Components
import Larkspan.Kit

// The editable values of a component.
Column {
    id: editor
    required property ComponentDetailBridge detail

    spacing: 2 * Theme.unit

    TitledField {
        width: parent.width
        title: qsTr("Name")

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
    TitledField {
        width: parent.width
        title: qsTr("Status")
        contentSpacing: Theme.unit

        SegmentedPicker {
            width: parent.width
            name: qsTr("Status")
            choosesTab: false
            segments: editor.detail.statuses
            selected: editor.detail.selectedStatus
            onChosen: segment => editor.detail.chooseStatus(segment)
        }
        Label {
            width: parent.width
            visible: text !== ""
            text: editor.detail.unlistedStatus
            font.pointSize: Theme.caption
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
    TitledField {
        width: parent.width
        title: qsTr("Description")

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
