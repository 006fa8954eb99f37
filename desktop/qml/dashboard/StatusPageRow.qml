import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

T.ItemDelegate {
    id: row
    required property int index
    required property string pageId
    required property string name
    required property string symbol
    required property int tone
    required property string label
    property bool showsFocus: false
    property bool isSelected: false

    implicitHeight: Math.max(Theme.rowHeight, pill.implicitHeight + 2 * Theme.unit)
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: label
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: isSelected
    // Qt 6.4 tells assistive technologies of the action, but does nothing when they take it.
    Accessible.onPressAction: clicked()
    Accessible.focused: ListView.isCurrentItem && ListView.view.activeFocus

    contentItem: Item {
        Symbol {
            id: mark
            x: 2 * Theme.unit - Theme.halfUnit
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.iconSize
            height: Theme.iconSize
            name: row.symbol
            color: Theme.toneColor(row.tone)
        }
        Label {
            anchors.left: mark.right
            anchors.leftMargin: Theme.unit + Theme.halfUnit
            anchors.right: pill.left
            anchors.rightMargin: 2 * Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            maximumLineCount: 1
        }
        Pill {
            id: pill
            anchors.right: parent.right
            anchors.rightMargin: 2 * Theme.unit - Theme.halfUnit
            anchors.verticalCenter: parent.verticalCenter
            text: row.label
            tone: row.tone
        }
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.halfUnit
            radius: Theme.controlRadius
            color: row.down ? Theme.pressed
                : row.isSelected ? Qt.alpha(Theme.accentOnCard, Theme.selectionOpacity)
                : row.hovered ? Theme.hover : "transparent"
            border.width: row.showsFocus ? Theme.focusWidth : 0
            border.color: Theme.focus
        }
        Rectangle {
            visible: row.index > 0
            width: parent.width
            height: Theme.hairline
            color: Theme.line
        }
    }
}
