import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// A row that leads out of the program.
T.Button {
    id: row
    required property string symbol
    required property string subtitle

    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + 2 * Theme.unit)
    leftPadding: 2 * Theme.unit
    rightPadding: 2 * Theme.unit
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: subtitle
    // Qt 6.4 tells assistive technologies of the action, but does nothing when they take it.
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
            name: row.symbol
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
                text: row.text
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                text: row.subtitle
                font.pointSize: Theme.caption
                color: Theme.secondary
                Accessible.ignored: true
            }
        }
        Symbol {
            id: arrow
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(Theme.iconSize * 0.8)
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
        FocusRing { control: row }
    }
}
