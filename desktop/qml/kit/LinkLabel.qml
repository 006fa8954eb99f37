import QtQuick
import Larkspan

// A text that leads out of the program.
Pressable {
    id: link
    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    Accessible.role: Accessible.Link

    Label {
        id: label
        anchors.fill: parent
        text: link.text
        color: Theme.accentOnCard
        font.underline: link.hovered || link.visualFocus
        Accessible.ignored: true
    }
    FocusRing { isShown: link.visualFocus }
}
