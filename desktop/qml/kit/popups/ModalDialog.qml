import QtQuick
import QtQuick.Templates as T
import Larkspan

// A dialog in the middle of the dimmed window, which keeps the focus while it is open. Escape closes it.
T.Dialog {

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    T.Overlay.modal: Dimming {}

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.window
        border.width: Theme.hairline
        border.color: Theme.line
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.calm; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
}
