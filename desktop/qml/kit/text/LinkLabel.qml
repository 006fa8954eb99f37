import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A text that opens an address outside the program.
Pressable {
    id: link
    // Whether a long text wraps; if not, it is cut at its end.
    property bool wraps: false

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    Accessible.role: Accessible.Link

    Label {
        id: label
        anchors.fill: parent
        text: link.text
        color: Theme.accentOnCard
        wrapMode: link.wraps ? Text.Wrap : Text.NoWrap
        font.underline: link.hovered || link.activeFocus && InputHand.isKeyboard
        Accessible.ignored: true
    }
    // Without the gap, which the lines above and below leave no room for.
    FocusRing {
        holder: link
        anchors.margins: -Theme.focusWidth
        radius: Theme.halfUnit
    }
}
