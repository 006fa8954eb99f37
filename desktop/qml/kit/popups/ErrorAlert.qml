import QtQuick
import Larkspan.Kit

// Reports that an action of the user has failed, and why.
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
