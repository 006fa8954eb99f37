import QtQuick
import Larkspan.Kit

// A name or a title in one line of a fixed height, cut at its end; it does not move. A
// screen reader reads it in full.
Label {
    required property int layoutHeight

    height: Math.round(layoutHeight * Theme.scale)
    maximumLineCount: 1
    wrapMode: Text.NoWrap
}
