import QtQuick
import Larkspan.Kit

// A control that is pressed: a button, or whatever other role it has for screen readers. The roles of Qt's own controls
// cannot be changed in Qt 6.4. A small one is also hit beside it.
Item {
    id: pressable
    property string text
    // The width that its text needs.
    property real wordWidth: 0
    // A part of a picker leaves the keyboard to the whole.
    property bool takesFocus: true
    property alias cursorShape: press.cursorShape
    readonly property bool hovered: pointer.hovered && enabled
    readonly property alias down: press.containsPress
    signal clicked

    activeFocusOnTab: takesFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: takesFocus
    Accessible.onPressAction: clicked()
    Keys.onSpacePressed: clicked()
    Keys.onSelectPressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    HoverHandler {
        id: pointer
    }
    // Not a tap, which a hand that rests too long on it would lose.
    MouseArea {
        id: press
        anchors.fill: parent
        anchors.topMargin: Math.min(0, (pressable.height - Theme.leastTarget) / 2)
        anchors.bottomMargin: anchors.topMargin
        anchors.leftMargin: Math.min(0, (pressable.width - Theme.leastTarget) / 2)
        anchors.rightMargin: anchors.leftMargin
        cursorShape: Qt.PointingHandCursor
        onClicked: {
            if (pressable.takesFocus) pressable.forceActiveFocus(Qt.MouseFocusReason)
            pressable.clicked()
        }
    }
}
