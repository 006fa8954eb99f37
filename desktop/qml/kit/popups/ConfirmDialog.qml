import QtQuick
import Larkspan
import Larkspan.Bridge

// Asks before something is lost. Cancel has the focus, so that a premature Return loses nothing.
MessageDialog {
    id: dialog
    required property confirmation confirmation
    property bool isDestructive: true
    signal confirmed

    title: confirmation.title
    text: confirmation.text

    CommandButton {
        text: dialog.confirmation.cancel
        focus: true
        onClicked: dialog.close()
    }
    CommandButton {
        text: dialog.confirmation.confirm
        isDestructive: dialog.isDestructive
        isProminent: !dialog.isDestructive
        onClicked: {
            dialog.confirmed()
            dialog.close()
        }
    }
}
