import QtQuick
import Larkspan

// A name or a title in one line of a fixed height, cut at its end; it does not move. It begins where it stands, whatever
// its script, since a mark may stand before it. A screen reader says it whole.
Label {
    required property int layoutHeight

    height: Math.round(layoutHeight * Theme.scale)
    maximumLineCount: 1
    wrapMode: Text.NoWrap
    horizontalAlignment: Text.AlignLeft
}
