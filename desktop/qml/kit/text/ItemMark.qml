import QtQuick
import Larkspan

// The bullet or the number before an item of a list. All digits take the same width, so that what follows stands in line:
// in many a font a "1" is narrower than the others, and Qt 6.4 cannot ask a font for its even digits.
Row {
    id: mark
    required property string text
    required property real digitWidth
    // What is not seen still keeps its place.
    property bool isSeen: true

    opacity: isSeen ? 1 : 0
    Accessible.ignored: !isSeen
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Repeater {
        model: mark.text.length

        Label {
            required property int index

            width: text >= "0" && text <= "9" ? mark.digitWidth : implicitWidth
            text: mark.text.charAt(index)
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
