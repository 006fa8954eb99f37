import QtQuick
import Larkspan

// The bullet or the number before an item of a list. All digits have the same width, so that the items are aligned: in
// many fonts "1" is narrower than the others, and Qt 6.4 cannot ask a font for its tabular digits.
Row {
    id: mark
    required property string text
    required property real digitWidth
    // An invisible mark still takes its space.
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
