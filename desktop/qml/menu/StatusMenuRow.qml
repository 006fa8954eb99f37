import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Menu
import Larkspan.Kit

// A row of the menu: a text, a command, or a separator. A mark before its title takes the same room whatever it is.
Item {
    id: delegate
    required property int index
    required property menuRow row
    property bool isCurrent: false
    readonly property bool isLit: isCurrent && row.isCommand
    readonly property real sidePadding: 2 * Theme.unit - Theme.halfUnit
    readonly property bool hasMark: row.hasDot || row.symbol !== ""
    readonly property color ink: isLit ? Theme.accentText
        : row.isCommand || row.isStatus || row.isText ? Theme.text : Theme.secondary
    signal entered
    signal triggered

    // A row that waits for reuse is not drawn, but a screen reader would still find it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    enabled: row.isCommand
    implicitHeight: row.isSeparator ? Theme.unit + Theme.hairline : Theme.menuRowHeight
    Accessible.role: row.isSeparator ? Accessible.Separator : row.isHeading ? Accessible.Heading : Accessible.MenuItem
    Accessible.name: row.title
    Accessible.description: row.help
    Accessible.focusable: row.isCommand
    Accessible.focused: isLit
    Accessible.onPressAction: triggered()

    Rectangle {
        visible: delegate.row.isSeparator
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Theme.hairline
        color: Theme.raisedLine
    }
    Rectangle {
        anchors.fill: parent
        visible: delegate.isLit
        radius: Theme.pillRadius
        color: tap.pressed ? Theme.accentPressed : Theme.accent
    }
    Symbol {
        x: delegate.sidePadding
        anchors.verticalCenter: parent.verticalCenter
        visible: delegate.row.symbol !== ""
        width: Theme.smallIconSize
        height: width
        name: delegate.row.symbol
        color: delegate.ink
    }
    Rectangle {
        x: delegate.sidePadding + (Theme.smallIconSize - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        visible: delegate.row.hasDot
        width: Theme.dotSize
        height: Theme.dotSize
        radius: Theme.dotSize / 2
        color: Theme.toneColor(delegate.row.tone)

        // The colours of a status are made for cards, and one of them equals the accent.
        Rectangle {
            z: -1
            anchors.centerIn: parent
            visible: delegate.isLit
            width: parent.width + Theme.halfUnit
            height: width
            radius: width / 2
            color: Theme.raised
        }
    }
    Label {
        anchors.left: parent.left
        anchors.leftMargin: delegate.sidePadding + (delegate.hasMark ? Theme.smallIconSize + Theme.unit : 0)
        anchors.right: ending.left
        anchors.rightMargin: ending.text === "" ? 0 : Theme.unit
        height: parent.height
        visible: !delegate.row.isSeparator
        text: delegate.row.title
        color: delegate.ink
        font.pointSize: delegate.row.isHeading ? Theme.caption : Theme.body
        font.weight: delegate.row.isStatus || delegate.row.isHeading ? Font.DemiBold : Font.Normal
        maximumLineCount: 1
    }
    Label {
        id: ending
        anchors.right: parent.right
        anchors.rightMargin: delegate.sidePadding
        height: parent.height
        text: delegate.row.ending
        font.pointSize: Theme.caption
        color: delegate.isLit ? Theme.accentText : Theme.secondary
    }

    HoverHandler {
        id: pointer
        onHoveredChanged: if (hovered) delegate.entered()
    }
    TapHandler {
        id: tap
        onTapped: delegate.triggered()
    }
    ToolTipLoader {
        text: delegate.row.help
        isShown: pointer.hovered && delegate.row.help !== ""
    }
}
