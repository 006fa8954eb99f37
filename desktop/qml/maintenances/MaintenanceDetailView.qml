import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Kit
import Larkspan.Messages

// One maintenance and its actions; in its place, while it is edited, the editor. Its message may be long, so it is the
// list, and the rest is above and below it.
EditableDetailFrame {
    id: view
    required property MaintenanceDetailBridge maintenance

    record: maintenance
    title: maintenance.title

    trailing: [
        MaintenanceMenuButton {
            visible: !view.maintenance.isEditing
            maintenance: view.maintenance
        },
        CommandButton {
            visible: view.maintenance.isEditing
            text: qsTr("Save")
            isProminent: true
            enabled: view.maintenance.isSaveEnabled
            onClicked: view.maintenance.saveEdits()
        }
    ]

    ActionDock {
        id: dock
        anchors.fill: parent
        visible: !view.maintenance.isEditing
        scroller: list
        card: actions
        widest: list.widest

        MessageList {
            id: list
            message: view.maintenance.message
            above: MaintenanceFacts {
                maintenance: view.maintenance
            }
            below: ActionDockEnd {
                owner: dock
                onReached: list.showFocusAtEnd()
                sourceComponent: MaintenanceActions {
                    maintenance: view.maintenance
                    showsFirst: false
                }
            }
        }
        MaintenanceActions {
            id: actions
            maintenance: view.maintenance
        }
    }
    Loader {
        anchors.fill: parent
        active: view.maintenance.isEditing
        focus: active
        onItemChanged: if (!item) list.forceActiveFocus(Qt.OtherFocusReason)
        sourceComponent: MaintenanceEditor {
            maintenance: view.maintenance
        }
    }
}
