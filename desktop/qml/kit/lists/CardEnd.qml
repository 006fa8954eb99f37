import QtQuick
import Larkspan.Kit

// The top or the bottom of a card, beneath a row of a list with several cards.
Rectangle {
    id: end
    required property bool isFirst

    height: Theme.cardRadius
    color: Theme.window
    clip: true

    Rectangle {
        y: end.isFirst ? 0 : -height / 2
        width: parent.width
        height: 2 * Theme.cardRadius
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line
    }
}
