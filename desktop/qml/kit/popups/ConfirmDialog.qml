import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Asks before something is lost. Cancel has the focus, so that a premature Return loses nothing.
MessageDialog {
    id: dialog
    required property confirmation confirmation
    property bool isDestructive: true
    signal confirmed

    title: confirmation.title
    text: confirmation.text
    // A hand that misses what cannot be undone must not hit it.
    actionSpacing: isDestructive ? 2 * Theme.unit : Theme.unit

    CommandButton {
        text: dialog.confirmation.cancel
        focus: true
        alwaysShowsFocus: dialog.isDestructive
        onClicked: dialog.close()
    }
    CommandButton {
        text: dialog.confirmation.confirm
        isDestructive: dialog.isDestructive
        isProminent: true
        onClicked: {
            dialog.confirmed()
            dialog.close()
        }
    }
}
