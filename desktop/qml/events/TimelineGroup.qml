import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The times of a record's states; below a line, separate entries, if any.
GroupBox {
    id: group
    required property list<timelineRow> rows
    default property alias apart: below.data
    property bool hasApart: true

    title: qsTr("Timeline")
    symbol: "clock.arrow.circlepath"
    contentSpacing: Theme.unit

    Repeater {
        model: group.rows
        TimelineLine {
            required property timelineRow modelData
            width: parent.width
            row: modelData
        }
    }
    Rectangle {
        visible: group.hasApart
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
    Column {
        id: below
        visible: group.hasApart
        width: parent.width
        spacing: group.contentSpacing
    }
}
