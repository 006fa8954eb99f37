import QtQuick
import Larkspan

// A status word on a tint of its own colour.
Rectangle {
    id: pill
    required property string text
    required property int tone

    implicitWidth: label.implicitWidth + 2 * Theme.unit
    implicitHeight: label.implicitHeight + Theme.unit
    radius: Theme.pillRadius
    color: Qt.alpha(Theme.toneColor(tone), Theme.pillOpacity)

    Label {
        id: label
        anchors.centerIn: parent
        text: pill.text
        color: Theme.toneColor(pill.tone)
        font.pointSize: Theme.caption
    }
}
