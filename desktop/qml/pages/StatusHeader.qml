import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The page's status in one word.
Row {
    id: header
    required property headline headline

    spacing: Theme.unit + Theme.halfUnit

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.statusIconSize
        height: Theme.statusIconSize
        name: header.headline.symbol
        color: Theme.toneColor(header.headline.tone)
    }
    Column {
        spacing: Theme.halfUnit / 2

        Label {
            text: header.headline.title
            font.pointSize: Theme.title2
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Label {
            text: header.headline.details
            font.pointSize: Theme.caption
            color: Theme.secondary
        }
    }
}
