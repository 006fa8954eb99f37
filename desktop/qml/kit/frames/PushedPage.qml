import QtQuick
import Larkspan.Kit

// A page over the screen that it was opened from. It is created when it is to be shown, covers that screen and takes
// the focus; Escape, Alt+Left, the mouse's back button and the back button of its header close it, and the focus
// returns.
FocusScope {
    id: page
    required property bool isShown
    // The screen that it covers and hides.
    required property Item beneath
    property alias sourceComponent: loader.sourceComponent
    // Whether the page decides itself how it is left, because typed text could be lost.
    property bool isGuarded: false
    signal backWanted
    // Emitted when the user has gone back.
    signal dismissed

    // From 0, before the page is visible, to 1, when only the page is visible.
    property real progress: 0
    readonly property bool isThere: loader.active
    property bool isLeaving: false

    // At once: a page that is opened while this one fades out would be closed with it.
    function goBack() {
        if (!isShown) return
        if (isGuarded) return backWanted()
        isLeaving = true
        progress = 0
        returnFocus()
        isLeaving = false
        dismissed()
    }
    function returnFocus() {
        focusBefore.giveBack()
        if (activeFocus) beneath.forceActiveFocus(Qt.OtherFocusReason)
    }

    anchors.fill: parent
    z: 1
    visible: isThere
    enabled: !isLeaving
    opacity: progress
    onIsShownChanged: {
        if (isShown) {
            focusBefore.remember(Window.activeFocusItem)
            progress = 1
            forceActiveFocus(Qt.OtherFocusReason)
        } else {
            progress = 0
            returnFocus()
        }
    }

    Behavior on progress {
        enabled: Theme.calm > 0 && page.isShown && !page.isLeaving
        NumberAnimation {
            duration: Theme.calm
            easing.type: Easing.OutCubic
        }
    }
    Binding {
        target: page.beneath
        property: "visible"
        value: false
        when: page.isThere && page.progress === 1 && !page.isLeaving
        restoreMode: Binding.RestoreBindingOrValue
    }
    Binding {
        target: page.beneath
        property: "enabled"
        value: false
        when: page.isShown && !page.isLeaving
        restoreMode: Binding.RestoreBindingOrValue
    }
    FocusReturn {
        id: focusBefore
    }

    Keys.onEscapePressed: goBack()
    Keys.onBackPressed: goBack()
    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Left || !(event.modifiers & Qt.AltModifier)) return
        goBack()
        event.accepted = true
    }

    // Keeps clicks and scrolling from the screen beneath.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: mouse => { if (mouse.button === Qt.BackButton) page.goBack() }
        onWheel: wheel => { wheel.accepted = true }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }
    Loader {
        id: loader
        anchors.fill: parent
        anchors.leftMargin: Math.round((1 - page.progress) * 3 * Theme.unit)
        anchors.rightMargin: -anchors.leftMargin
        active: page.isShown
        focus: true
        onLoaded: item.focus = true
    }
}
