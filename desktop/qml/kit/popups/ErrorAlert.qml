import QtQuick
import Larkspan

// Tells that what the user asked for has failed, and why.
MessageDialog {
    id: alert
    title: qsTr("Error")

    CommandButton {
        text: qsTr("OK")
        isProminent: true
        focus: true
        onClicked: alert.close()
    }
}
