import QtQuick
import Larkspan
import Larkspan.Bridge

// One component, and its editor.
ScreenFrame {
    id: view
    required property ComponentDetailBridge detail
    readonly property bool isEditing: detail.isEditing

    title: detail.title
    isBusy: detail.isBusy
    busyText: detail.busyText
    alert: detail.alert
    onAlertDismissed: detail.dismissAlert()
    onIsEditingChanged: if (!isEditing) column.forceActiveFocus(Qt.OtherFocusReason)

    leading: CommandButton {
        text: view.detail.closeLabel
        enabled: view.detail.isCloseEnabled
        onClicked: view.wentBack()
    }
    trailing: [
        CommandButton {
            visible: !view.isEditing
            text: qsTr("Edit")
            enabled: !view.detail.isBusy
            onClicked: view.detail.beginEditing()
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
        activeFocusOnTab: isScrollable && !view.isEditing

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
            enabled: !view.detail.isBusy
            sourceComponent: ComponentEditor {
                detail: view.detail
            }
        }
    }

    ConfirmLoader {
        isShown: view.detail.showsDeleteConfirmation
        confirmation: view.detail.deleteConfirmation
        onDismissed: view.detail.cancelDelete()
        onConfirmed: view.detail.deleteRecord()
    }
    ConfirmLoader {
        isShown: view.detail.showsDiscardConfirmation
        confirmation: view.detail.discardConfirmation
        onDismissed: view.detail.keepEditing()
        onConfirmed: view.detail.discardChanges()
    }
}
