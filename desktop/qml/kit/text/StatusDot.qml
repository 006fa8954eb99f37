import QtQuick
import Larkspan.Kit

// The dot of a status. It tells by its colour alone, so a tool tip and a screen reader say the status in a word.
Rectangle {
    id: dot
    required property int tone
    required property string word

    width: Theme.dotSize
    height: width
    radius: width / 2
    color: Theme.toneColor(tone)
    Accessible.role: Accessible.Graphic
    Accessible.name: word
    Accessible.ignored: word === ""

    // Larger than the dot, which is hard to meet.
    Item {
        anchors.fill: parent
        anchors.margins: -Theme.unit

        HoverHandler {
            id: pointer
        }
        ToolTipLoader {
            text: dot.word
            isShown: pointer.hovered && dot.word !== ""
        }
    }
}
