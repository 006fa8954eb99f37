import QtQuick
import Larkspan.Bridge.Incidents
import Larkspan.Events
import Larkspan.Kit

EventFormSheet {
    id: sheet
    required property CreateIncidentBridge incident

    form: incident
    title: qsTr("New Incident")
    titlePlaceholder: qsTr("Incident Title")

    GroupBox {
        width: parent.width
        title: qsTr("Notifications")

        Toggle {
            width: parent.width
            text: qsTr("Notify subscribers")
            isOn: sheet.incident.notifySubscribers
            onClicked: sheet.incident.toggleNotifySubscribers()
        }
        Label {
            width: parent.width
            text: qsTr("Subscribers receive the initial incident update by email and any configured channels.")
            font.pointSize: Theme.caption
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
}
