import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A row of a `CardList`: a list item for screen readers, with the focus ring and the line above it. Its content is read
// in the order in which it is declared.
Item {
    id: card
    required property int index
    // The row for screen readers: its title as name, its status as description.
    required property string name
    property string description
    // Rows that only inform are reached by keyboard and screen reader, but cannot be pressed.
    property bool isPressable: true
    // Whether the keyboard stops here; it does not at mere separators.
    property bool isStop: true
    property bool hasDivider: true
    // The row's content, as wide as its padding allows.
    required property Item contentItem
    property real topPadding: Theme.unit
    property real bottomPadding: topPadding
    property real leftPadding: 2 * Theme.unit
    property real rightPadding: leftPadding
    readonly property real implicitContentHeight: contentItem.implicitHeight
    // The distance of the ring from the row's edge.
    property real ringTop: Theme.halfUnit
    property real ringBottom: Theme.halfUnit
    signal clicked

    width: ListView.view ? ListView.view.width - ListView.view.leftMargin - ListView.view.rightMargin : implicitWidth
    implicitHeight: Math.max(Theme.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    // A row that waits for reuse is not drawn, but a screen reader would still find it; Qt 6.8 hides it from screen
    // readers, and would never show it again.
    ListView.onPooled: visible = false
    ListView.onReused: {
        visible = true
        Accessible.ignored = false
    }
    // The current row has the focus within its list; a blank may be part of typed letters, so the list gets the keys
    // first.
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
        color: tap.pressed ? Theme.pressed : pointer.hovered ? Theme.hover : Theme.rest
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
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
