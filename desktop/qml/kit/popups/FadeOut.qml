import QtQuick
import Larkspan.Kit

// How what came with a FadeIn goes.
Transition {
    NumberAnimation {
        property: "opacity"
        to: 0
        duration: Theme.quick
        easing.type: Easing.OutCubic
    }
}
