import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// A button with a text; the prominent one is the most likely choice.
T.Button {
    id: button
    property bool isProminent: false
    property bool isDestructive: false
    // For rows with several buttons each.
    property bool isSmall: false
    property string symbol
    property int tone: Tone.Primary
    readonly property bool isTinted: tone !== Tone.Primary
    readonly property color ink: isProminent ? isTinted ? Theme.toneText : Theme.accentText
        : isDestructive ? Theme.red : Theme.toneColor(tone)

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, Theme.controlHeight * 2)
    implicitHeight: Math.max(isSmall ? Theme.smallControlHeight : Theme.controlHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: 2 * Theme.unit - Theme.halfUnit
    rightPadding: leftPadding
    topPadding: Theme.halfUnit
    bottomPadding: Theme.halfUnit
    hoverEnabled: true
    opacity: enabled ? 1 : 0.5
    Accessible.name: text
    // Qt 6.4 reports the action to assistive technologies, but does nothing when they invoke it.
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        implicitWidth: caption.x + caption.implicitWidth
        implicitHeight: caption.implicitHeight

        Symbol {
            visible: button.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: button.symbol
            color: button.ink
        }
        Label {
            id: caption
            x: button.symbol === "" ? 0 : Theme.smallIconSize + Theme.narrowGap
            width: parent.width - x
            height: parent.height
            text: button.text
            font.pointSize: button.isSmall ? Theme.subheadline : Theme.body
            color: button.ink
            horizontalAlignment: button.symbol === "" ? Text.AlignHCenter : Text.AlignLeft
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: !button.isProminent ? Theme.card : button.isTinted ? Theme.toneColor(button.tone) : Theme.accent
        border.width: button.isProminent ? 0 : Theme.hairline
        border.color: button.isTinted ? button.ink : Theme.line

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: button.down ? Theme.pressed : button.hovered ? Theme.hover : "transparent"
            Behavior on color {
                ColorAnimation { duration: Theme.quick }
            }
        }
        FocusRing { holder: button }
    }
}
