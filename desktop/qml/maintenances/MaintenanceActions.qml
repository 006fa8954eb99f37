import QtQuick
import Larkspan
import Larkspan.Bridge.Maintenances

ActionCard {
    id: actions
    required property MaintenanceDetailBridge maintenance

    buttons: maintenance.buttons
    onPressed: button => maintenance.press(button)
}
