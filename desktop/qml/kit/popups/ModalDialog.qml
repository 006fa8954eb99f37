import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

// A dialog in the middle of the dimmed window, which keeps the focus while it is open. Escape closes it. When its
// content grows, its top edge stays where it is as long as there is room beneath.
T.Dialog {
    id: dialog
    // The height that all of its content takes.
    required property real wholeHeight
    // Whether there is a dialog beneath it, which has dimmed the window already.
    property bool isOverAnother: false

    readonly property real room: parent ? parent.height : 0
    readonly property real mostHeight: room - 2 * Theme.margin
    // The height at which it stays once its content has stopped growing.
    readonly property real lastHeight: Math.min(wholeHeight, mostHeight)
    property real growingHeight: wholeHeight
    property bool isPlaced: false
    property real top: 0

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: isPlaced ? Math.max(Theme.margin, Math.min(top, room - Theme.margin - height)) : middle()
    height: Math.min(growingHeight, mostHeight)
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: isPlaced = false
    onOpened: if (parent) parent.Window.window.update()
    onRoomChanged: if (isPlaced) place()

    function middle(): real {
        return Math.round((room - lastHeight) / 2)
    }
    function place() {
        top = middle()
        isPlaced = true
    }

    // Only a frame has laid out the content, and with reduced motion the dialog is open before its first one.
    Connections {
        target: dialog.parent ? dialog.parent.Window.window : null
        enabled: dialog.opened && !dialog.isPlaced
        function onAfterAnimating() {
            dialog.place()
        }
    }
    Behavior on growingHeight {
        enabled: dialog.opened && !Theme.reducesMotion
        NumberAnimation { duration: Theme.calm; easing.type: Easing.OutCubic }
    }

    T.Overlay.modal: Dimming {
        isSecond: dialog.isOverAnother
    }

    background: Surface {
        radius: Theme.cardRadius
        color: Theme.sheet
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.calm; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
}
