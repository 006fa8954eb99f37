import QtQuick
import Larkspan
import Larkspan.Bridge

MessageDialog {
    id: dialog
    required property UpdateBridge updates

    title: updates.title
    text: updates.text
    showsProgress: updates.showsProgress

    CommandButton {
        text: dialog.updates.showsProgress ? qsTr("Close") : qsTr("OK")
        isProminent: true
        focus: true
        onClicked: dialog.close()
    }
}
