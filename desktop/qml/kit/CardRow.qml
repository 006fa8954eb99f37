import QtQuick
import QtQuick.Templates as T
import Larkspan

// A row of a `CardList`: a list item for screen readers, with the ring of the keyboard and the line above it. What stands in it is read in the order in which it is written down.
T.ItemDelegate {
    id: card
    required property int index
    // What a screen reader says of the row: its title and its status.
    required property string name
    property string description
    // Rows that only tell are met by the keyboard and the screen reader, and nothing happens when they are pressed.
    property bool isPressable: true
    property bool hasDivider: true

    width: ListView.view ? ListView.view.width - ListView.view.leftMargin - ListView.view.rightMargin : implicitWidth
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    topPadding: Theme.unit
    bottomPadding: topPadding
    leftPadding: 2 * Theme.unit - Theme.halfUnit
    rightPadding: leftPadding
    // A row that waits to be used again is not drawn, but a screen reader would still meet it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    hoverEnabled: isPressable
    focusPolicy: Qt.NoFocus
    // The current row has the focus within its list; a blank may belong to what is typed, so the list has the keys first.
    Keys.forwardTo: ListView.view ? [ListView.view] : []
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: description
    Accessible.focusable: true
    // Qt 6.4 tells assistive technologies of the action, but does nothing when they take it.
    Accessible.onPressAction: clicked()
    Accessible.focused: ListView.isCurrentItem && ListView.view.activeFocus

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.halfUnit
            radius: Theme.controlRadius
            color: card.down && card.isPressable ? Theme.pressed
                : card.hovered ? Theme.hover : "transparent"
            border.width: InputHand.isKeyboard && card.Accessible.focused ? Theme.focusWidth : 0
            border.color: Theme.focus
        }
        Rectangle {
            visible: card.hasDivider && card.index > 0
            width: parent.width
            height: Theme.hairline
            color: Theme.line
        }
    }
}
