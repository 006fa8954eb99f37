import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Kit

ActionCard {
    id: actions
    required property MaintenanceDetailBridge maintenance

    buttons: maintenance.buttons
    onPressed: button => maintenance.press(button)
}
