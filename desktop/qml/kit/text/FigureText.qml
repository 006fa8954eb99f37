import QtQuick
import Larkspan.Kit

// A short text with figures, or the number before an item of a list. All digits have the same width, so that numbers
// one below the other are aligned: in many fonts "1" is narrower than the others, and Qt 6.4 cannot ask a font for its
// tabular digits.
Row {
    id: figure
    required property string text
    required property real digitWidth
    property color color: Theme.text
    property font font
    // An invisible text still takes its space.
    property bool isSeen: true

    opacity: isSeen ? 1 : 0
    Accessible.ignored: !isSeen
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Repeater {
        model: figure.text.match(/[0-9]|[^0-9]+/g) ?? []

        Label {
            required property string modelData

            width: modelData >= "0" && modelData <= "9" ? figure.digitWidth : implicitWidth
            text: modelData
            font: figure.font
            color: figure.color
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
