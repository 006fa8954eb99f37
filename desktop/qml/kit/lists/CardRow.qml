import QtQuick
import Larkspan
import Larkspan.Bridge

// A row of a `CardList`: a list item for screen readers, with the ring of the keyboard and the line above it. What stands in it is read in the order in which it is written down.
Item {
    id: card
    required property int index
    // What a screen reader says of the row: its title and its status.
    required property string name
    property string description
    // Rows that only tell are met by the keyboard and the screen reader, and nothing happens when they are pressed.
    property bool isPressable: true
    // What only parts the rows is passed by.
    property bool isStop: true
    property bool hasDivider: true
    // What stands in the row, as wide as its padding leaves.
    required property Item contentItem
    property real topPadding: Theme.unit
    property real bottomPadding: topPadding
    property real leftPadding: 2 * Theme.unit - Theme.halfUnit
    property real rightPadding: leftPadding
    readonly property real implicitContentHeight: contentItem.implicitHeight
    // How far the ring stands inside the row.
    property real ringTop: Theme.halfUnit
    property real ringBottom: Theme.halfUnit
    signal clicked

    width: ListView.view ? ListView.view.width - ListView.view.leftMargin - ListView.view.rightMargin : implicitWidth
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    // A row that waits to be used again is not drawn, but a screen reader would still meet it, or with Qt 6.8, which hides it
    // from one, would never meet it again.
    ListView.onPooled: visible = false
    ListView.onReused: {
        visible = true
        Accessible.ignored = false
    }
    // The current row has the focus within its list; a blank may belong to what is typed, so the list has the keys first.
    activeFocusOnTab: isStop && ListView.isCurrentItem || activeFocus
    Keys.forwardTo: ListView.view ? [ListView.view] : []
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: description
    Accessible.focusable: isStop
    Accessible.onPressAction: clicked()
    Accessible.focused: activeFocus

    Rectangle {
        z: -1
        anchors.fill: parent
        anchors.margins: Theme.halfUnit
        anchors.topMargin: card.ringTop
        anchors.bottomMargin: card.ringBottom
        radius: Theme.controlRadius
        color: tap.pressed ? Theme.pressed : pointer.hovered ? Theme.hover : "transparent"
        border.width: InputHand.isKeyboard && card.activeFocus ? Theme.focusWidth : 0
        border.color: Theme.focus
    }
    Rectangle {
        z: -1
        visible: card.hasDivider && card.index > 0
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
    Item {
        z: 1
        x: card.leftPadding
        y: card.topPadding
        children: [card.contentItem]
    }
    Binding {
        target: card.contentItem
        property: "width"
        value: card.width - card.leftPadding - card.rightPadding
    }
    Binding {
        target: card.contentItem
        property: "height"
        value: card.height - card.topPadding - card.bottomPadding
    }

    HoverHandler {
        id: pointer
        enabled: card.isPressable
    }
    TapHandler {
        id: tap
        enabled: card.isPressable
        onTapped: card.clicked()
    }
}
