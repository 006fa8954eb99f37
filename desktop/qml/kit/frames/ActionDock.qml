import QtQuick
import Larkspan.Kit

// The content of a record, which scrolls, and below its end the card of the record's actions. While the end lies below
// the window, the card stays at the window's bottom edge. If that would take more than a third of the screen, only the
// first action stays there, and the content ends with the others.
Item {
    id: dock
    required property Flickable scroller
    required property ActionCard card
    // The largest width of content and card.
    required property real widest
    readonly property bool isDivided: height > 0 && card.isDivisible && card.wholeHeight > height / 3
    readonly property real contentEnd: scroller.contentHeight + scroller.topMargin + scroller.bottomMargin
    readonly property real gap: Theme.rowGap

    Binding {
        target: dock.scroller
        property: "width"
        value: dock.width
    }
    Binding {
        target: dock.scroller
        property: "height"
        value: Math.max(0, dock.height - dock.card.height - 2 * dock.gap)
    }
    Binding {
        target: dock.card
        property: "showsOthers"
        value: !dock.isDivided
    }
    Binding {
        target: dock.card
        property: "width"
        value: Math.min(dock.width - 2 * Theme.margin, dock.widest)
    }
    Binding {
        target: dock.card
        property: "x"
        value: Math.round((dock.width - dock.card.width) / 2)
    }
    Binding {
        target: dock.card
        property: "y"
        value: Math.min(dock.contentEnd, dock.height - dock.card.height - dock.gap)
    }
    Rectangle {
        visible: dock.contentEnd > dock.scroller.height
        y: dock.scroller.height
        width: dock.width
        height: Theme.hairline
        color: Theme.line
    }
}
