import QtQuick
import Larkspan.Kit

// How a menu comes and, backwards, goes.
Transition {
    id: fade
    property bool isOut: false

    NumberAnimation {
        property: "opacity"
        from: fade.isOut ? 1 : 0
        to: fade.isOut ? 0 : 1
        duration: Theme.quick
        easing.type: Easing.OutCubic
    }
}
