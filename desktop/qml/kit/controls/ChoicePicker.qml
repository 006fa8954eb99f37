import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A choice of one among many: a line with the chosen name, which opens a list of all names over it. If there is no room
// beside the caption, the name is below it. Arrows, Home, End and letters move in the list, Return chooses.
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

    readonly property bool isStacked: caption.implicitWidth + 2 * Theme.unit + chosenName.implicitWidth + Theme.halfUnit > arrow.x
    readonly property color ink: enabled ? Theme.text : Theme.disabledText
    readonly property color quietInk: enabled ? Theme.secondary : Theme.disabledText

    implicitHeight: isStacked ? caption.height + chosenName.height + Theme.unit : Theme.controlHeight
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
        y: picker.isStacked ? Theme.halfUnit : Math.round((parent.height - height) / 2)
        width: Math.min(implicitWidth, arrow.x - Theme.halfUnit)
        text: picker.text
        color: picker.ink
        Accessible.ignored: true
    }
    Label {
        id: chosenName
        x: picker.isStacked ? 0 : caption.width + 2 * Theme.unit
        y: picker.isStacked ? caption.y + caption.height : caption.y
        width: arrow.x - Theme.halfUnit - x
        text: picker.selectedName
        color: picker.quietInk
        horizontalAlignment: picker.isStacked ? Text.AlignLeft : Text.AlignRight
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
        onAboutToHide: picker.forceActiveFocus(Qt.PopupFocusReason)
    }
}
