import QtQuick
import Larkspan
import Larkspan.Bridge

// A button with a text; the prominent one is the most likely choice.
Pressable {
    id: button
    property bool isProminent: false
    property bool isDestructive: false
    // For rows with several buttons each.
    property bool isSmall: false
    property string symbol
    property int tone: Tone.Primary
    readonly property bool isTinted: tone !== Tone.Primary
    readonly property color ink: !enabled ? Theme.disabledText : isProminent ? isTinted ? Theme.toneText : Theme.accentText
        : isDestructive ? Theme.red : Theme.toneColor(tone)
    readonly property color fill: !isProminent ? Theme.card : !enabled ? Theme.disabledFill
        : isTinted ? Theme.toneColor(tone) : Theme.accent
    readonly property color edge: !enabled ? Theme.line : isTinted ? Theme.toneColor(tone)
        : isProminent ? Theme.accentLine : hovered || down ? Theme.controlLineHovered : Theme.controlLine
    readonly property real sidePadding: 2 * Theme.unit - Theme.halfUnit
    readonly property real symbolWidth: symbol === "" ? 0 : Theme.smallIconSize + Theme.narrowGap

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
        FocusRing { holder: button }
    }
    Symbol {
        visible: button.symbol !== ""
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
