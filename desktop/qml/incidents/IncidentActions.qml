import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Incidents
import Larkspan.Kit

// The actions of an incident; in the editor, the button that sends the text.
ActionCard {
    id: actions
    required property IncidentDetailBridge incident

    buttons: incident.buttons
    onPressed: button => incident.press(button)

    CommandButton {
        anchors.right: parent.right
        visible: actions.incident.isEditing
        text: qsTr("Save Update")
        symbol: "checkmark"
        isProminent: true
        enabled: actions.incident.isSaveEnabled
        onClicked: actions.incident.saveUpdate()
    }
}
