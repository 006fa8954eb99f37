import QtQuick
import QtQuick.Templates as T
import Larkspan

// A button with words; the prominent one is what the user most likely wants.
T.Button {
    id: button
    property bool isProminent: false
    property bool isDestructive: false

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, Theme.controlHeight * 2)
    implicitHeight: Math.max(Theme.controlHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: 2 * Theme.unit - Theme.halfUnit
    rightPadding: leftPadding
    topPadding: Theme.halfUnit
    bottomPadding: Theme.halfUnit
    hoverEnabled: true
    opacity: enabled ? 1 : 0.5
    Accessible.name: text
    // Qt 6.4 tells assistive technologies of the action, but does nothing when they take it.
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Label {
        text: button.text
        color: button.isProminent ? Theme.accentText : button.isDestructive ? Theme.red : Theme.text
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: button.isProminent ? Theme.accent : Theme.card
        border.width: button.isProminent ? 0 : Theme.hairline
        border.color: Theme.line

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: button.down ? Theme.pressed : button.hovered ? Theme.hover : "transparent"
            Behavior on color {
                ColorAnimation { duration: Theme.quick }
            }
        }
        FocusRing { isShown: button.visualFocus }
    }
}
