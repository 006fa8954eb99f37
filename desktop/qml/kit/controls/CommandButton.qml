import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A button with a text; the prominent one is the most likely choice.
Pressable {
    id: button
    property bool isProminent: false
    property bool isDestructive: false
    // For rows with several buttons each.
    property bool isSmall: false
    // Whether what it has started still runs, which a moving mark in place of its symbol shows.
    property bool isBusy: false
    property string symbol
    property int tone: Tone.Primary
    // Whether users of the pointer see the focus, too.
    property bool alwaysShowsFocus: false
    readonly property bool isTinted: tone !== Tone.Primary
    readonly property color ink: !enabled ? Theme.disabledText
        : isProminent ? isDestructive ? Theme.dangerText : isTinted ? Theme.toneText : Theme.accentText
        : isDestructive ? Theme.red : Theme.toneColor(tone)
    readonly property color fill: !isProminent ? Theme.card : !enabled ? Theme.disabledFill
        : isDestructive ? Theme.danger : isTinted ? Theme.toneColor(tone) : Theme.accent
    readonly property color edge: !enabled ? Theme.disabledLine : isTinted ? Theme.toneColor(tone)
        : isProminent ? isDestructive ? Theme.danger : Theme.accentLine
        : hovered || down ? Theme.controlLineHovered : Theme.controlLine
    readonly property real sidePadding: 2 * Theme.unit - Theme.halfUnit
    readonly property real symbolWidth: symbol === "" && !isBusy ? 0 : Theme.smallIconSize + Theme.narrowGap

    implicitWidth: Math.max(symbolWidth + caption.implicitWidth + 2 * sidePadding, Theme.controlHeight * 2)
    implicitHeight: Math.max(isSmall ? Theme.smallControlHeight : Theme.controlHeight, caption.implicitHeight + 2 * Theme.halfUnit)
    cursorShape: Qt.ArrowCursor

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: button.fill
        border.width: Theme.hairline
        border.color: button.edge

        // Within the edge, which keeps its contrast.
        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.hairline
            radius: parent.radius - Theme.hairline
            color: button.isProminent
                ? button.down ? Theme.pressedOnFill : button.hovered ? Theme.hoverOnFill : Theme.restOnFill
                : button.down ? Theme.pressed : button.hovered ? Theme.hover : Theme.rest
            Behavior on color {
                ColorAnimation { duration: Theme.quick }
            }
        }
        FocusRing {
            holder: button
            visible: button.activeFocus && (button.alwaysShowsFocus || InputHand.isKeyboard)
        }
    }
    Loader {
        active: button.isBusy
        anchors.verticalCenter: parent.verticalCenter
        x: button.sidePadding
        sourceComponent: BusyIndicator {
            width: Theme.smallIconSize
            height: width
        }
    }
    Symbol {
        visible: button.symbol !== "" && !button.isBusy
        anchors.verticalCenter: parent.verticalCenter
        x: button.sidePadding
        width: Theme.smallIconSize
        height: width
        name: button.symbol
        color: button.ink
    }
    Label {
        id: caption
        anchors.fill: parent
        anchors.leftMargin: button.sidePadding + button.symbolWidth
        anchors.rightMargin: button.sidePadding
        anchors.topMargin: Theme.halfUnit
        anchors.bottomMargin: Theme.halfUnit
        text: button.text
        font.pointSize: button.isSmall ? Theme.subheadline : Theme.body
        color: button.ink
        horizontalAlignment: button.symbol === "" ? Text.AlignHCenter : Text.AlignLeft
        Accessible.ignored: true
    }
}
