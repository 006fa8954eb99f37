import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The account's status in one sentence.
Rectangle {
    id: card
    required property headline headline

    implicitHeight: words.implicitHeight + 4 * Theme.unit
    radius: Theme.cardRadius
    color: Theme.card
    border.width: Theme.hairline
    border.color: Theme.line

    Symbol {
        id: mark
        x: 2 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.headlineIconSize
        height: Theme.headlineIconSize
        name: card.headline.symbol
        color: Theme.toneColor(card.headline.tone)
    }
    Column {
        id: words
        anchors.left: mark.right
        anchors.leftMargin: 2 * Theme.unit
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.halfUnit

        Label {
            width: parent.width
            text: card.headline.title
            font.pointSize: Theme.title2
            font.weight: Font.DemiBold
            color: Theme.toneColor(card.headline.tone)
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            text: card.headline.details
            font.pointSize: Theme.subheadline
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
}
