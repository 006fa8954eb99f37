import QtQuick
import QtQuick.Templates as T
import Larkspan

T.MenuItem {
    id: item
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.controlHeight, implicitContentHeight + 2 * Theme.halfUnit)
    leftPadding: 2 * Theme.unit - Theme.halfUnit
    rightPadding: leftPadding
    hoverEnabled: true
    Accessible.name: text
    // Qt 6.4 tells assistive technologies of the action, but does nothing when they take it.
    Accessible.onPressAction: if (enabled) triggered()

    contentItem: Label {
        text: item.text
        color: item.highlighted ? Theme.accentText : Theme.text
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.pillRadius
        color: item.highlighted ? Theme.accent : "transparent"
    }
}
