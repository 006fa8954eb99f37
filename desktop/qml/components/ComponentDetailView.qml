import QtQuick
import Larkspan.Bridge.Components
import Larkspan.Kit

// One component, and its editor.
EditableDetailFrame {
    id: view
    required property ComponentDetailBridge detail
    readonly property bool isEditing: detail.isEditing

    record: detail
    title: detail.title
    busyText: detail.busyText
    onIsEditingChanged: if (!isEditing) column.forceActiveFocus(Qt.OtherFocusReason)

    trailing: [
        CommandButton {
            visible: !view.isEditing
            text: qsTr("Edit")
            enabled: !view.detail.isBusy
            onClicked: view.detail.beginEditing()
        },
        // What deletes stands apart.
        Item {
            visible: !view.isEditing
            width: Theme.unit
            height: 1
        },
        ToolbarButton {
            visible: !view.isEditing
            symbol: "trash"
            ink: Theme.red
            help: qsTr("Delete Component")
            enabled: !view.detail.isBusy
            onClicked: view.detail.confirmDelete()
        },
        CommandButton {
            visible: view.isEditing
            text: qsTr("Save")
            isProminent: true
            enabled: view.detail.isSaveEnabled
            onClicked: view.detail.saveChanges()
        }
    ]

    ScrollingColumn {
        id: column
        anchors.fill: parent
        name: view.detail.title
        widest: Theme.columnWidth * Theme.scale
        focus: true
        takesFocus: !view.isEditing

        Loader {
            width: parent.width
            active: !view.isEditing
            visible: active
            sourceComponent: ComponentFacts {
                detail: view.detail
            }
        }
        Loader {
            width: parent.width
            active: view.isEditing
            visible: active
            sourceComponent: ComponentEditor {
                detail: view.detail
            }
        }
    }
}
