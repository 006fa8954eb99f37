import QtQuick
import Larkspan
import Larkspan.Bridge

// Asks a question while it is to be seen.
PopupLoader {
    id: loader
    required property confirmation confirmation
    property bool isDestructive: true
    signal confirmed

    sourceComponent: ConfirmDialog {
        confirmation: loader.confirmation
        isDestructive: loader.isDestructive
        onConfirmed: loader.confirmed()
    }
}
