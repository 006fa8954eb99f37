import QtQuick
import Larkspan.Bridge

// Shows a confirmation while there is one.
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
