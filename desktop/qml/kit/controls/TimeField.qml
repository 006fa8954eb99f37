import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

// Two digits of a time of day, typed or changed with the arrow and page keys and, while the field has the focus, with
// the wheel; without the focus the wheel scrolls the surrounding content.
T.TextField {
    id: field
    required property string name
    // The value on the clock. Typed text is not changed until the field is left.
    required property string value
    // The pattern of accepted text; other digits are refused.
    required property string pattern
    property bool isTyping: false
    property real turned: 0
    signal typed(digits: string)
    signal stepped(count: int, isFar: bool)

    function step(count: int, isFar: bool) {
        isTyping = false
        stepped(count, isFar)
        selectAll()
    }
    function show() {
        text = value
        if (activeFocus) selectAll()
    }

    implicitWidth: Theme.timeFieldWidth
    implicitHeight: Theme.smallControlHeight
    horizontalAlignment: TextInput.AlignHCenter
    verticalAlignment: TextInput.AlignVCenter
    maximumLength: 2
    validator: RegularExpressionValidator { regularExpression: new RegExp(field.pattern) }
    inputMethodHints: Qt.ImhDigitsOnly
    hoverEnabled: true
    selectByMouse: true
    color: enabled ? Theme.text : Theme.disabledText
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    font.pointSize: Theme.body
    renderType: Text.NativeRendering
    Accessible.role: Accessible.EditableText
    Accessible.name: name

    Component.onCompleted: show()
    onValueChanged: if (!isTyping) show()
    onTextEdited: {
        isTyping = true
        typed(text)
    }
    onActiveFocusChanged: {
        isTyping = false
        show()
    }
    onPressed: isTyping = false
    // Wherever the caret is, the first digit replaces the text, and so does a digit for which there is no room.
    function beginWith(digit: string) {
        const isOpen = isTyping && length < maximumLength
        if (digit >= "0" && digit <= "9" && !isOpen && selectedText === "") selectAll()
    }
    Keys.onUpPressed: step(1, false)
    Keys.onDownPressed: step(-1, false)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown
        if (event.accepted) step(event.key === Qt.Key_PageUp ? 1 : -1, true)
        else beginWith(event.text)
    }

    WheelHandler {
        enabled: field.activeFocus
        onWheel: event => {
            const notch = 120
            field.turned += event.angleDelta.y
            const count = Math.trunc(field.turned / notch)
            field.turned -= count * notch
            if (count !== 0) field.step(count, false)
        }
    }

    background: EntryBackground {
        isFocused: field.activeFocus
        isHovered: field.hovered
    }
}
