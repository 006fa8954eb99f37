import QtQuick
import Larkspan
import Larkspan.Bridge.Maintenances

EventFormSheet {
    id: sheet
    required property CreateMaintenanceBridge maintenance

    form: maintenance
    title: qsTr("New Maintenance")
    titlePlaceholder: qsTr("Maintenance Title")

    GroupBox {
        width: parent.width
        title: qsTr("Scheduled Start")

        DateTimePicker {
            width: parent.width
            name: qsTr("Start")
            picker: sheet.maintenance.scheduledFor
        }
    }
    GroupBox {
        width: parent.width
        title: qsTr("Scheduled End")

        DateTimePicker {
            width: parent.width
            name: qsTr("End")
            picker: sheet.maintenance.scheduledUntil
        }
    }
}
