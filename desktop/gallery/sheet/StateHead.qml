import QtQuick
import Larkspan.Kit

// The head of a table of states.
Item {
    id: head
    height: names.height + Theme.unit + Theme.hairline

    Row {
        id: names
        x: head.width / 7

        Repeater {
            model: ["At rest", "Hovered", "Pressed", "Focused", "Selected", "Disabled"]
            SheetCaption {
                required property string modelData
                width: head.width / 7
                text: modelData
            }
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
}
