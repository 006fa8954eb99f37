import QtQuick
import Larkspan.Kit

// How a popup comes, its target. It is no `enter` transition, since Qt gives a popup the focus only after that, and a
// key that is pressed meanwhile would go to what lies beneath.
NumberAnimation {
    id: fade
    property: "opacity"
    from: 0
    to: 1
    duration: Theme.quick
    easing.type: Easing.OutCubic

    readonly property Connections opening: Connections {
        target: fade.target
        function onAboutToShow() {
            fade.restart()
        }
        function onAboutToHide() {
            fade.stop()
        }
    }
}
