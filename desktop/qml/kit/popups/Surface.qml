import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The ground of what is shown over the window, with the shadow that lifts it off the cards beneath.
Rectangle {
    id: surface
    radius: Theme.controlRadius
    color: Theme.raised
    border.width: Theme.hairline
    border.color: Theme.raisedLine

    Shadow {
        z: -1
        anchors.fill: parent
        radius: surface.radius
        reach: Theme.shadowReach
        color: Theme.shadow
    }
}
