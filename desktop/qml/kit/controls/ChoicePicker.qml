import QtQuick
import Larkspan
import Larkspan.Bridge

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

    implicitHeight: isStacked ? caption.height + chosenName.height + Theme.unit : Theme.smallControlHeight
    opacity: enabled ? 1 : 0.5
    Accessible.role: Accessible.ComboBox
    Accessible.description: selectedName
    onClicked: popup.open()
    Keys.onDownPressed: popup.open()

    Label {
        id: caption
        y: picker.isStacked ? Theme.halfUnit : Math.round((parent.height - height) / 2)
        width: Math.min(implicitWidth, arrow.x - Theme.halfUnit)
        text: picker.text
        Accessible.ignored: true
    }
    Label {
        id: chosenName
        x: picker.isStacked ? 0 : caption.width + 2 * Theme.unit
        y: picker.isStacked ? caption.y + caption.height : caption.y
        width: arrow.x - Theme.halfUnit - x
        text: picker.selectedName
        color: Theme.secondary
        horizontalAlignment: picker.isStacked ? Text.AlignLeft : Text.AlignRight
    }
    Symbol {
        id: arrow
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.smallIconSize
        height: width
        name: "chevron.down"
        color: Theme.secondary
    }
    FocusRing {
        holder: picker
        anchors.leftMargin: -Theme.unit
        anchors.rightMargin: -Theme.unit
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
