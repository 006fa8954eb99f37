import QtQuick
import Larkspan
import Larkspan.Bridge.Menu

// A row of the menu: a text, a command, or a separator.
Item {
    id: delegate
    required property int index
    required property menuRow row
    property bool isCurrent: false
    readonly property bool isLit: isCurrent && row.isCommand
    signal entered
    signal triggered

    // A row that waits for reuse is not drawn, but a screen reader would still find it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    enabled: row.isCommand
    implicitHeight: row.isSeparator ? Theme.unit + Theme.hairline : Theme.menuRowHeight
    Accessible.role: row.isSeparator ? Accessible.Separator : Accessible.MenuItem
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
        color: Theme.line
    }
    Rectangle {
        anchors.fill: parent
        visible: delegate.isLit
        radius: Theme.pillRadius
        color: Theme.accent
    }
    Rectangle {
        id: dot
        x: 2 * Theme.unit - Theme.halfUnit
        anchors.verticalCenter: parent.verticalCenter
        visible: delegate.row.hasDot
        width: visible ? Theme.dotSize : 0
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
            color: Theme.card
        }
    }
    Label {
        anchors.left: dot.right
        anchors.leftMargin: delegate.row.hasDot ? Theme.unit : 0
        anchors.right: keys.left
        anchors.rightMargin: Theme.unit
        height: parent.height
        visible: !delegate.row.isSeparator
        text: delegate.row.title
        color: delegate.isLit ? Theme.accentText : delegate.row.isCommand ? Theme.text : Theme.secondary
        maximumLineCount: 1
    }
    Label {
        id: keys
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.unit - Theme.halfUnit
        height: parent.height
        text: delegate.row.shortcut
        font.pointSize: Theme.caption
        color: delegate.isLit ? Theme.accentText : Theme.secondary
    }

    HoverHandler {
        id: pointer
        onHoveredChanged: if (hovered) delegate.entered()
    }
    TapHandler {
        onTapped: delegate.triggered()
    }
    ToolTipLoader {
        text: delegate.row.help
        isShown: pointer.hovered && delegate.row.help !== ""
    }
}
