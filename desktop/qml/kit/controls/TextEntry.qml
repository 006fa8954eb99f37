import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

// An entry of one line.
T.TextField {
    id: field
    required property string name

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit + Theme.halfUnit
    rightPadding: leftPadding
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
