import QtQuick
import Larkspan.Kit

// A label at the left and its value at the right; if there is no room for both, the value stands below the label.
Item {
    id: line
    required property Item label
    required property Item value
    // The distance of the label, and of a value below it, from the left.
    property real indent: 0
    readonly property real room: width - indent
    // The middle of the label, for a mark before it.
    readonly property real middle: label.y + label.height / 2
    readonly property bool isStacked: label.implicitWidth + 2 * Theme.unit + value.implicitWidth > room

    implicitHeight: isStacked ? label.height + value.height : Math.max(label.height, value.height)

    Binding {
        target: line.label
        property: "parent"
        value: line
    }
    Binding {
        target: line.label
        property: "x"
        value: line.indent
    }
    Binding {
        target: line.label
        property: "y"
        value: line.isStacked ? 0 : Math.round((line.height - line.label.height) / 2)
    }
    Binding {
        target: line.label
        property: "width"
        value: line.isStacked ? line.room : line.label.implicitWidth
    }
    Binding {
        target: line.value
        property: "parent"
        // After the label, since the order of children is the reading order.
        value: line.label.parent ? line : null
    }
    Binding {
        target: line.value
        property: "x"
        value: line.isStacked ? line.indent : line.width - line.value.implicitWidth
    }
    Binding {
        target: line.value
        property: "y"
        value: line.isStacked ? line.label.height : Math.round((line.height - line.value.height) / 2)
    }
    Binding {
        target: line.value
        property: "width"
        value: line.isStacked ? line.room : line.value.implicitWidth
    }
}
