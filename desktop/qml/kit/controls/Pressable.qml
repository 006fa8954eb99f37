import QtQuick
import Larkspan

// What is pressed as a button is, but is something else to a screen reader: Qt 6.4 gives each of its own controls a role
// that nothing can change.
Item {
    id: pressable
    property string text
    // The room that its words ask for.
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
