import QtQuick
import Larkspan
import Larkspan.Bridge

// The duration of a record.
Item {
    id: line
    required property string duration

    implicitHeight: label.implicitHeight

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.smallIconSize
        height: width
        name: "timer"
        color: Theme.secondary
    }
    Label {
        id: label
        x: Theme.iconSize + Theme.unit
        text: qsTr("Duration")
        font.pointSize: Theme.subheadline
        color: Theme.secondary
    }
    Label {
        anchors.right: parent.right
        text: line.duration
        font.pointSize: Theme.subheadline
    }
}
