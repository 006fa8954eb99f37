import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A button of the header bar: a symbol, with its help text as name and tool tip.
Pressable {
    id: button
    required property string symbol
    required property string help
    // Whether the button's menu is open, which its tool tip would cover.
    property bool isMenuOpen: false
    property color ink: Theme.text
    property int iconSize: Theme.iconSize
    // Whether it shows progress in place of its symbol, and cannot be pressed.
    property bool isBusy: false

    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight
    enabled: !isBusy
    cursorShape: Qt.ArrowCursor
    Accessible.name: help

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: button.down ? Theme.pressed : button.hovered ? Theme.hover : Theme.rest
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
        FocusRing { holder: button }
    }
    Symbol {
        visible: !button.isBusy
        anchors.centerIn: parent
        width: button.iconSize
        height: width
        name: button.symbol
        color: button.enabled ? button.ink : Theme.disabledText
    }
    BusyIndicator {
        visible: button.isBusy
        anchors.centerIn: parent
        name: button.help
    }
    ToolTipLoader {
        text: button.help
        isShown: button.hovered && !button.down && !button.isMenuOpen
    }
}
