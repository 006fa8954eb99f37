import QtQuick
import Larkspan.Kit

// Covers a screen while the user waits for something; nothing beneath it can be pressed meanwhile.
Rectangle {
    id: overlay
    // A description of what is running; if empty, only that something is.
    property string text
    readonly property bool floats: true

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

    Surface {
        anchors.centerIn: parent
        width: Math.max(indicator.width, label.width) + 6 * Theme.unit
        height: label.y + label.height + 3 * Theme.unit
        radius: Theme.cardRadius

        BusyIndicator {
            id: indicator
            anchors.horizontalCenter: parent.horizontalCenter
            y: 3 * Theme.unit
            width: 1.5 * implicitWidth
            height: width
            name: overlay.text !== "" ? overlay.text : qsTr("In progress")
        }
        Label {
            id: label
            anchors.horizontalCenter: parent.horizontalCenter
            y: indicator.y + indicator.height + (text === "" ? 0 : Theme.unit)
            height: text === "" ? 0 : implicitHeight
            text: overlay.text
        }
    }
}
