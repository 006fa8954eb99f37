import QtQuick
import Larkspan.Kit

// A setting that is on or off, with its label before it.
Pressable {
    id: toggle
    required property bool isOn

    implicitHeight: Theme.controlHeight
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: isOn

    Label {
        anchors.left: parent.left
        anchors.right: track.left
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        text: toggle.text
        color: toggle.enabled ? Theme.text : Theme.disabledText
        Accessible.ignored: true
    }
    Rectangle {
        id: track
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.toggleWidth
        height: Theme.toggleHeight
        radius: height / 2
        color: !toggle.enabled ? Theme.disabledFill : toggle.isOn ? Theme.accent : Theme.switchOff
        border.width: Theme.hairline
        border.color: !toggle.enabled ? Theme.disabledLine : toggle.hovered || toggle.down ? Theme.controlLineHovered
            : toggle.isOn ? Theme.accentLine : Theme.controlLine
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }

        Rectangle {
            x: toggle.isOn ? track.width - width - 2 : 2
            anchors.verticalCenter: parent.verticalCenter
            width: track.height - 4
            height: width
            radius: width / 2
            color: toggle.enabled ? Theme.knob : Theme.disabledText
            Behavior on x {
                NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic }
            }
        }
    }
    FocusRing {
        holder: toggle
        anchors.leftMargin: -Theme.unit
        anchors.rightMargin: -Theme.unit
    }
}
