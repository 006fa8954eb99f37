import QtQuick
import Larkspan

// A page over the screen that it was opened from. It is made when it is to be seen and covers that screen with all its
// focus; Escape, Alt+Left, the mouse's back button and the back button of its header lead back, and the focus returns.
FocusScope {
    id: page
    required property bool isShown
    // What it lies over, and hides while it is there.
    required property Item beneath
    property alias sourceComponent: loader.sourceComponent
    // What the page holds could be lost, so that it decides itself what the way back does.
    property bool isGuarded: false
    signal backWanted
    // The user has gone back.
    signal dismissed

    // From 0, where the page is not there yet, to 1, where nothing is seen but the page.
    property real progress: 0
    readonly property bool isThere: loader.active
    property bool isLeaving: false

    // At once: what is opened while a page still faded out would be closed by that page's end.
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

    // Nothing reaches what lies beneath, neither clicks nor scrolling.
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
