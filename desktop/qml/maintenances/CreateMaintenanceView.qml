import QtQuick
import Larkspan.Bridge.Maintenances
import Larkspan.Events
import Larkspan.Kit

EventFormSheet {
    id: sheet
    required property CreateMaintenanceBridge maintenance

    preferredWidth: Theme.wideSheetWidth
    form: maintenance
    title: qsTr("New Maintenance")
    titlePlaceholder: qsTr("Maintenance Title")

    ScheduledTimes {
        width: parent.width
        start: sheet.maintenance.scheduledFor
        end: sheet.maintenance.scheduledUntil
        length: sheet.maintenance.length
    }
}
