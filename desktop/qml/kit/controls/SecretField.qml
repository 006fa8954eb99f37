import QtQuick
import QtQuick.Templates as T
import Larkspan

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
    selectByMouse: true
    clip: true
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    font.pointSize: Theme.body
    renderType: Text.NativeRendering
    verticalAlignment: TextInput.AlignVCenter
    Accessible.role: Accessible.EditableText
    Accessible.name: name

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.window
        border.width: field.activeFocus ? Theme.focusWidth : Theme.hairline
        border.color: field.activeFocus ? Theme.focus : Theme.line

        Label {
            anchors.fill: parent
            anchors.leftMargin: field.leftPadding
            anchors.rightMargin: field.rightPadding
            visible: field.length === 0 && field.preeditText === ""
            text: field.placeholderText
            color: Theme.secondary
        }
    }
}
