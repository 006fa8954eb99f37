import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// Things one below the other, which scroll where there is no room for all. Whatever the keyboard reaches is to be seen;
// with the focus on the column itself, the arrows, the page keys, Home and End scroll.
Flickable {
    id: scroller
    // What a screen reader says of the column, where it can have the focus.
    property string name
    // No wider than this; the rest is margin on both sides.
    property real widest: Infinity
    default property alias content: column.data
    property alias spacing: column.spacing
    // Where it has things to read and not only things to reach.
    property bool takesFocus: false
    readonly property bool isStop: takesFocus && scrolling.isScrollable

    activeFocusOnTab: isStop || activeFocus
    contentHeight: column.implicitHeight + 2 * Theme.margin
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    Accessible.role: Accessible.Pane
    Accessible.name: name
    Accessible.ignored: name === ""
    Accessible.focusable: isStop
    onHeightChanged: scrolling.follow()
    Keys.onPressed: event => { event.accepted = activeFocus && scrolling.take(event) }

    Scrolling {
        id: scrolling
        flickable: scroller
    }
    Column {
        id: column
        width: Math.min(scroller.width - 2 * Theme.margin, scroller.widest)
        x: Math.round((scroller.width - width) / 2)
        y: Theme.margin
        spacing: 2 * Theme.unit
    }
    FocusRing {
        parent: scroller
        holder: scroller
        visible: scroller.activeFocus && scroller.isStop && InputHand.isKeyboard
        anchors.margins: 0
        radius: 0
    }

    T.ScrollBar.vertical: SlimScrollBar {}
}
