import QtQuick
import Larkspan
import Larkspan.Bridge

// A choice of one among many: a line with the chosen name, which opens a list of all names over it. Arrows, Home, End
// and letters move in the list, Return chooses.
Pressable {
    id: picker
    required property list<choice> choices
    required property string selected
    signal chosen(id: string)

    readonly property int selectedPlace: {
        for (let at = 0; at < choices.length; ++at) if (choices[at].id === selected) return at
        return -1
    }
    readonly property string selectedName: selectedPlace < 0 ? "" : choices[selectedPlace].name

    implicitHeight: Theme.controlHeight
    readonly property color ink: enabled ? Theme.text : Theme.disabledText
    readonly property color quietInk: enabled ? Theme.secondary : Theme.disabledText

    Accessible.role: Accessible.ComboBox
    Accessible.description: selectedName
    onClicked: popup.open()
    Keys.onDownPressed: popup.open()

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: -Theme.unit
        anchors.rightMargin: -Theme.unit
        radius: Theme.controlRadius
        color: picker.down ? Theme.pressed : picker.hovered ? Theme.hover : Theme.rest
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }

        FocusRing { holder: picker }
    }
    Label {
        id: caption
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width / 2)
        text: picker.text
        color: picker.ink
        Accessible.ignored: true
    }
    Label {
        anchors.left: caption.right
        anchors.leftMargin: 2 * Theme.unit
        anchors.right: arrow.left
        anchors.rightMargin: Theme.halfUnit
        anchors.verticalCenter: parent.verticalCenter
        text: picker.selectedName
        color: picker.quietInk
        horizontalAlignment: Text.AlignRight
    }
    Symbol {
        id: arrow
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.smallIconSize
        height: width
        name: "chevron.down"
        color: picker.quietInk
    }

    ChoicePopup {
        id: popup
        name: picker.text
        choices: picker.choices
        selectedPlace: picker.selectedPlace
        onChosen: id => picker.chosen(id)
        onClosed: picker.forceActiveFocus(Qt.PopupFocusReason)
    }
}
