import QtQuick
import Larkspan

// The bar at the top: items at both ends, the title in the middle of the window while there is room for it.
Rectangle {
    id: bar
    required property string title
    default property alias leading: leadingRow.data
    property alias trailing: trailingRow.data

    readonly property real freeLeft: leadingRow.x + leadingRow.width + Theme.unit
    readonly property real freeRight: trailingRow.x - Theme.unit

    implicitHeight: Theme.headerHeight
    color: Theme.card

    Row {
        id: leadingRow
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit + Theme.halfUnit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.halfUnit
    }

    Label {
        anchors.verticalCenter: parent.verticalCenter
        // Half a title helps nobody, and the window's frame has it too.
        visible: implicitWidth <= bar.freeRight - bar.freeLeft
        x: Math.round(Math.max(bar.freeLeft, Math.min((bar.width - implicitWidth) / 2, bar.freeRight - implicitWidth)))
        text: bar.title
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }

    Row {
        id: trailingRow
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit + Theme.halfUnit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.halfUnit
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
}
