import QtQuick
import Larkspan
import Larkspan.Bridge.Maintenances

Column {
    id: actions
    required property MaintenanceDetailBridge maintenance

    topPadding: Theme.margin

    GroupBox {
        width: parent.width

        Flow {
            width: parent.width
            spacing: Theme.unit

            Repeater {
                model: actions.maintenance.buttons.length
                ActionCommand {
                    required property int index
                    button: actions.maintenance.buttons[index]
                    onClicked: actions.maintenance.press(button.id)
                }
            }
        }
    }
}
