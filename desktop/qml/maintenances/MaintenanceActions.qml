import QtQuick
import Larkspan
import Larkspan.Bridge

ActionCard {
    id: actions
    required property MaintenanceDetailBridge maintenance

    buttons: maintenance.buttons
    onPressed: button => maintenance.press(button)
}
