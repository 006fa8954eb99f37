import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// One name in the list of a picker.
Item {
    id: delegate
    required property int index
    required property choice modelData
    property bool isCurrent: false
    signal entered
    signal triggered

    implicitHeight: Theme.menuRowHeight
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    Accessible.role: Accessible.MenuItem
    Accessible.name: modelData.name
    Accessible.focusable: true
    Accessible.focused: isCurrent
    Accessible.onPressAction: triggered()

    Rectangle {
        anchors.fill: parent
        visible: delegate.isCurrent
        radius: Theme.pillRadius
        color: tap.pressed ? Theme.accentPressed : Theme.accent
    }
    Label {
        anchors.fill: parent
        anchors.leftMargin: 2 * Theme.unit - Theme.halfUnit
        anchors.rightMargin: anchors.leftMargin
        text: delegate.modelData.name
        color: delegate.isCurrent ? Theme.accentText : Theme.text
        maximumLineCount: 1
    }
    HoverHandler {
        onHoveredChanged: if (hovered) delegate.entered()
    }
    TapHandler {
        id: tap
        onTapped: delegate.triggered()
    }
}
