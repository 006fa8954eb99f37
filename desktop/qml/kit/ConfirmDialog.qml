import QtQuick
import Larkspan

// Asks before something is lost. Cancel has the focus, so that a hasty Return loses nothing.
MessageDialog {
    id: dialog
    required property string confirmText
    signal confirmed

    CommandButton {
        text: qsTr("Cancel")
        focus: true
        onClicked: dialog.close()
    }
    CommandButton {
        text: dialog.confirmText
        isDestructive: true
        onClicked: {
            dialog.confirmed()
            dialog.close()
        }
    }
}
