import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

// An entry whose text is hidden, on screen and on the accessibility bus.
T.TextField {
    id: field
    required property string name
    // Qt itself would reveal the text on the accessibility bus; the bridge looks for this property.
    readonly property bool hidesItsText: true

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit + Theme.halfUnit
    rightPadding: leftPadding
    echoMode: TextInput.Password
    passwordMaskDelay: 0
    inputMethodHints: Qt.ImhSensitiveData | Qt.ImhHiddenText | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
    hoverEnabled: true
    selectByMouse: true
    clip: true
    color: enabled ? Theme.text : Theme.disabledText
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    font.pointSize: Theme.body
    renderType: Text.NativeRendering
    verticalAlignment: TextInput.AlignVCenter
    Accessible.role: Accessible.EditableText
    Accessible.name: name

    background: EntryBackground {
        isFocused: field.activeFocus
        isHovered: field.hovered
        placeholder: field.length === 0 && field.preeditText === "" ? field.placeholderText : ""
    }
}
