import QtQuick
import Larkspan
import Larkspan.Bridge

// A status word on a tint of its own colour.
Rectangle {
    id: shape
    required property pill pill

    implicitWidth: label.implicitWidth + 2 * Theme.unit
    implicitHeight: label.implicitHeight + Theme.unit
    radius: Theme.pillRadius
    color: Qt.alpha(Theme.toneColor(pill.tone), Theme.pillOpacity)

    Label {
        id: label
        anchors.centerIn: parent
        text: shape.pill.text
        color: Theme.toneColor(shape.pill.tone)
        font.pointSize: Theme.caption
    }
}
