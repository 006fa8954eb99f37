import QtQuick
import Larkspan
import Larkspan.Bridge

// A row of the menu: words that inform, a command, or a line between groups.
Item {
    id: row
    required property int index
    required property string title
    required property bool isSeparator
    required property bool isCommand
    required property bool hasDot
    required property int tone
    required property string help
    required property string shortcut
    property bool isCurrent: false
    readonly property bool isLit: isCurrent && isCommand
    signal entered
    signal triggered

    implicitHeight: isSeparator ? Theme.unit + Theme.hairline : Theme.menuRowHeight
    Accessible.role: isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: title
    Accessible.description: help
    Accessible.focusable: isCommand
    Accessible.focused: isLit
    Accessible.onPressAction: if (isCommand) triggered()

    Rectangle {
        visible: row.isSeparator
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
    Rectangle {
        anchors.fill: parent
        visible: row.isLit
        radius: Theme.pillRadius
        color: Theme.accent
    }
    Rectangle {
        id: dot
        x: 2 * Theme.unit - Theme.halfUnit
        anchors.verticalCenter: parent.verticalCenter
        visible: row.hasDot
        width: visible ? Theme.dotSize : 0
        height: Theme.dotSize
        radius: Theme.dotSize / 2
        color: row.isLit ? Theme.accentText : Theme.toneColor(row.tone)
    }
    Label {
        anchors.left: dot.right
        anchors.leftMargin: row.hasDot ? Theme.unit : 0
        anchors.right: keys.left
        anchors.rightMargin: Theme.unit
        height: parent.height
        visible: !row.isSeparator
        text: row.title
        color: row.isLit ? Theme.accentText : row.isCommand ? Theme.text : Theme.secondary
        maximumLineCount: 1
        Accessible.ignored: true
    }
    Label {
        id: keys
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.unit - Theme.halfUnit
        height: parent.height
        text: row.shortcut
        font.pointSize: Theme.caption
        color: row.isLit ? Theme.accentText : Theme.secondary
        Accessible.ignored: true
    }

    HoverHandler {
        id: pointer
        enabled: row.isCommand
        onHoveredChanged: if (hovered) row.entered()
    }
    TapHandler {
        enabled: row.isCommand
        onTapped: row.triggered()
    }
    KitToolTip {
        text: row.help
        visible: pointer.hovered && row.help !== ""
    }
}
