import QtQuick
import Larkspan.Kit

// A choice of one among a few that are side by side. The arrow keys choose the neighbour.
Rectangle {
    id: picker
    required property string name
    required property list<string> segments
    // -1 for none.
    required property int selected
    // Whether the choice is a screen and not a value.
    property bool choosesTab: true
    signal chosen(int segment)

    readonly property real room: width - 2 * Theme.halfUnit
    readonly property real wordsWidth: {
        let sum = 0
        for (let at = 0; at < repeater.count; ++at) sum += (repeater.itemAt(at) as Pressable)?.wordWidth ?? 0
        return sum
    }

    implicitHeight: Theme.controlHeight + Theme.unit
    radius: Theme.controlRadius + Theme.halfUnit
    color: Theme.track
    border.width: Theme.hasHighContrast ? Theme.hairline : 0
    border.color: Theme.controlLine
    activeFocusOnTab: true
    Accessible.role: choosesTab ? Accessible.PageTabList : Accessible.Grouping
    Accessible.name: name
    Accessible.focusable: true
    Keys.onLeftPressed: event => choose(selected - 1, event)
    Keys.onRightPressed: event => choose(selected + 1, event)
    function choose(segment: int, event: KeyEvent) {
        // With Alt the key goes back.
        event.accepted = !(event.modifiers & Qt.AltModifier)
        if (event.accepted && segment >= 0 && segment < segments.length) chosen(segment)
    }

    FocusRing { holder: picker }
    FontMetrics {
        id: metrics
        font.pointSize: Theme.subheadline
        font.weight: Font.DemiBold
    }
    Row {
        anchors.fill: parent
        anchors.margins: Theme.halfUnit

        Repeater {
            id: repeater
            model: picker.segments

            Pressable {
                id: segment
                required property int index
                required property string modelData
                // As the chosen one, so that no word moves when another is chosen.
                wordWidth: metrics.advanceWidth(modelData) + 2 * Theme.halfUnit
                readonly property bool isSelected: index === picker.selected

                // Each has the width of its text, plus or minus its share of the remaining or missing width.
                width: picker.room < picker.wordsWidth ? wordWidth * picker.room / picker.wordsWidth
                    : wordWidth + (picker.room - picker.wordsWidth) / picker.segments.length
                height: picker.height - 2 * Theme.halfUnit
                takesFocus: false
                text: modelData
                onClicked: picker.chosen(index)
                Accessible.role: picker.choosesTab ? Accessible.PageTab : Accessible.RadioButton
                Accessible.selectable: picker.choosesTab
                Accessible.selected: picker.choosesTab && isSelected
                Accessible.checkable: !picker.choosesTab
                Accessible.checked: !picker.choosesTab && isSelected

                Rectangle {
                    anchors.fill: parent
                    radius: Theme.controlRadius
                    color: segment.isSelected ? Theme.segment : !picker.enabled ? Theme.rest : segment.down ? Theme.pressed : segment.hovered ? Theme.hover : Theme.rest
                    border.width: segment.isSelected ? Theme.hairline : 0
                    border.color: picker.enabled ? Theme.segmentLine : Theme.disabledLine
                }
                Label {
                    id: label
                    anchors.fill: parent
                    anchors.leftMargin: Theme.halfUnit
                    anchors.rightMargin: Theme.halfUnit
                    text: segment.text
                    color: picker.enabled ? Theme.text : Theme.disabledText
                    horizontalAlignment: Text.AlignHCenter
                    font.pointSize: Theme.subheadline
                    fontSizeMode: Text.HorizontalFit
                    minimumPointSize: Theme.caption2
                    font.weight: segment.isSelected ? Font.DemiBold : Font.Normal
                    Accessible.ignored: true
                }
            }
        }
    }
}
