import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// A row that opens an address outside the program.
T.Button {
    id: row
    required property link link

    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + 2 * Theme.unit)
    leftPadding: 2 * Theme.unit
    rightPadding: 2 * Theme.unit
    hoverEnabled: true
    Accessible.name: link.title
    Accessible.description: link.subtitle
    // Qt 6.4 reports the action to assistive technologies, but does nothing when they invoke it.
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        implicitHeight: words.implicitHeight

        Symbol {
            id: mark
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
            }
            Label {
                width: parent.width
                text: row.link.subtitle
                font.pointSize: Theme.caption
                color: Theme.secondary
            }
        }
        Symbol {
            id: arrow
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: "arrow.up.right"
            color: Theme.secondary
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: row.down ? Theme.pressed : row.hovered ? Theme.hover : "transparent"
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
        FocusRing { holder: row }
    }
}
