import QtQuick
import Larkspan
import Larkspan.Bridge

// What can be done to a maintenance.
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
                model: actions.maintenance.buttons
                ActionCommand {
                    onPressedById: id => actions.maintenance.press(id)
                }
            }
        }
    }
}
