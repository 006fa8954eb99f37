import QtQuick
import QtQuick.Templates as T
import Larkspan.Bridge
import Larkspan.Kit

T.MenuItem {
    id: item
    property string symbol
    property bool isDestructive: false
    readonly property color ink: !enabled ? Theme.disabledText
        : highlighted || down ? Theme.accentText : isDestructive ? Theme.red : Theme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.controlHeight, implicitContentHeight + 2 * Theme.halfUnit)
    leftPadding: 2 * Theme.unit - Theme.halfUnit
    rightPadding: leftPadding
    hoverEnabled: true
    Accessible.name: text
    // Qt 6.4 reports the action to assistive technologies, but does nothing when they invoke it.
    Accessible.onPressAction: triggered()
    // In Qt 6.8 Tab would move from row to row and out of the menu, in Qt 6.4 it does not; the arrows move in the menu.
    Keys.onTabPressed: event => { event.accepted = true }
    Keys.onBacktabPressed: event => { event.accepted = true }

    contentItem: Item {
        implicitWidth: caption.x + caption.implicitWidth
        implicitHeight: caption.implicitHeight

        Symbol {
            visible: item.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: item.symbol
            color: item.ink
        }
        Label {
            id: caption
            x: item.symbol === "" ? 0 : Theme.smallIconSize + Theme.unit
            width: parent.width - x
            height: parent.height
            text: item.text
            color: item.ink
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Theme.pillRadius
        color: item.down ? Theme.accentPressed : item.highlighted ? Theme.accent : "transparent"
    }
}
