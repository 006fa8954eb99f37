import QtQuick
import Larkspan

// A control that is pressed like a button, with any role for screen readers: the roles of Qt's own controls cannot be
// changed in Qt 6.4.
Item {
    id: pressable
    property string text
    // The width that its text needs.
    property real wordWidth: 0
    readonly property alias hovered: pointer.hovered
    readonly property alias down: tap.pressed
    signal clicked

    activeFocusOnTab: true
    Accessible.name: text
    Accessible.focusable: activeFocusOnTab
    Accessible.onPressAction: clicked()
    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    HoverHandler {
        id: pointer
        cursorShape: Qt.PointingHandCursor
    }
    TapHandler {
        id: tap
        onTapped: pressable.clicked()
    }
}
