import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A row that opens an address outside the program.
Pressable {
    id: row
    required property link link

    implicitHeight: Math.max(Theme.rowHeight, words.implicitHeight + 2 * Theme.unit)
    cursorShape: Qt.ArrowCursor
    Accessible.name: link.title
    Accessible.description: link.subtitle

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: row.down ? Theme.pressed : row.hovered ? Theme.hover : Theme.rest
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
        // Rows stand close together and have no edge that a ring could be mistaken for.
        FocusRing {
            holder: row
            anchors.margins: 0
            radius: Theme.controlRadius
        }
    }
    Symbol {
        id: mark
        anchors.left: parent.left
        anchors.leftMargin: 2 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.iconSize
        height: Theme.iconSize
        name: row.link.symbol
        color: Theme.accentOnCard
    }
    Column {
        id: words
        anchors.left: mark.right
        anchors.leftMargin: Theme.unit + Theme.halfUnit
        anchors.right: arrow.left
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: row.link.title
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        Label {
            width: parent.width
            text: row.link.subtitle
            font.pointSize: Theme.caption
            color: Theme.secondary
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
    }
    Symbol {
        id: arrow
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.smallIconSize
        height: width
        name: "arrow.up.right"
        color: Theme.secondary
    }
}
