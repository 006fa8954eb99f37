import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The choice of a screen among a few: side by side if all their words fit, otherwise one button with a menu of them. The
// arrow keys choose the neighbour in either form.
FocusScope {
    id: tabs
    required property string name
    required property list<string> segments
    required property int selected
    // What is chosen in the open menu; -1 for nothing.
    property int wanted: -1
    signal chosen(int segment)

    readonly property bool hasRoomForWords: {
        let sum = 2 * Theme.halfUnit
        for (const word of segments) sum += metrics.advanceWidth(word) + 2 * Theme.halfUnit
        return sum <= width
    }

    implicitHeight: hasRoomForWords ? picker.implicitHeight : button.implicitHeight
    onWantedChanged: if (!menu.isOpen) chooseWanted()
    Keys.onLeftPressed: event => picker.choose(selected - 1, event)
    Keys.onRightPressed: event => picker.choose(selected + 1, event)

    // Each word may be the selected one, which is semibold.
    FontMetrics {
        id: metrics
        font.pointSize: Theme.subheadline
        font.weight: Font.DemiBold
    }
    SegmentedPicker {
        id: picker
        visible: tabs.hasRoomForWords
        focus: tabs.hasRoomForWords
        width: parent.width
        name: tabs.name
        segments: tabs.segments
        selected: tabs.selected
        onChosen: segment => tabs.chosen(segment)
    }
    CommandButton {
        id: button
        visible: !tabs.hasRoomForWords
        focus: !tabs.hasRoomForWords
        width: parent.width
        Accessible.role: Accessible.ComboBox
        Accessible.name: tabs.name
        Accessible.description: word.text
        Keys.onDownPressed: menu.isOpen = true
        onClicked: menu.isOpen = true

        Label {
            id: word
            anchors.centerIn: parent
            text: tabs.segments[tabs.selected] ?? ""
            font.weight: Font.DemiBold
        }
        Symbol {
            anchors.right: parent.right
            anchors.rightMargin: 2 * Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: "chevron.down"
            color: Theme.secondary
        }
        MenuLoader {
            id: menu
            holder: button
            file: Qt.resolvedUrl("../popups/TabMenu.qml")
            given: ({ picker: tabs })
            onClosed: tabs.chooseWanted()
        }
    }
    // After the menu has given the focus back, since the chosen screen may take it.
    function chooseWanted() {
        const segment = wanted
        wanted = -1
        if (segment >= 0) chosen(segment)
    }
}
