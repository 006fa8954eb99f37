import QtQuick
import Larkspan.Kit

// Shows that something is running. Does not move if the desktop asks for reduced motion.
Item {
    id: indicator
    property string name: qsTr("In progress")
    property color color: Theme.secondary

    implicitWidth: Theme.iconSize
    implicitHeight: Theme.iconSize
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name

    Repeater {
        model: indicator.visible ? 8 : 0
        Rectangle {
            id: spoke
            required property int index
            width: indicator.width / 8
            height: indicator.height / 3.4
            radius: spoke.width / 2
            x: (indicator.width - spoke.width) / 2
            color: indicator.color
            opacity: (spoke.index + 1) / 8
            transformOrigin: Item.Center
            transform: Rotation {
                origin.x: spoke.width / 2
                origin.y: indicator.height / 2
                angle: spoke.index * 45
            }
        }
    }

    RotationAnimator on rotation {
        from: 0
        to: 360
        duration: Theme.turn
        loops: Animation.Infinite
        running: indicator.visible && !Theme.reducesMotion
    }
}
