import QtQuick
import Larkspan

// Lies over a screen while something is done that the user waits for; nothing beneath it can be pressed meanwhile.
Rectangle {
    id: overlay
    property alias name: indicator.name

    anchors.fill: parent
    z: 2
    color: Theme.veil
    opacity: visible ? 1 : 0
    Behavior on opacity {
        NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => { wheel.accepted = true }
    }

    Rectangle {
        anchors.centerIn: parent
        width: indicator.width + 6 * Theme.unit
        height: indicator.height + 6 * Theme.unit
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line

        BusyIndicator {
            id: indicator
            anchors.centerIn: parent
            width: 2 * Theme.iconSize
            height: width
        }
    }
}
