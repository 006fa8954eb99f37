import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Items one below the other, which scroll if they do not fit. Whatever gets the focus is made visible; while the column
// itself has the focus, the arrows, the page keys, Home and End scroll.
Flickable {
    id: scroller
    // The column's name for screen readers, if it can have the focus.
    property string name
    // The largest width; the rest is margin on both sides.
    property real widest: Infinity
    default property alias content: column.data
    property alias spacing: column.spacing
    // Whether it can have the focus, because it has content to read and not only controls.
    property bool takesFocus: false
    property alias followsFocus: scrolling.followsFocus
    readonly property bool isStop: takesFocus && scrolling.isScrollable

    function reveal(item: Item) {
        scrolling.reveal(item)
    }

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

    ScrollBarLoader {
        flickable: scroller
    }
}
