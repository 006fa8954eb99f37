import QtQuick
import Larkspan
import Larkspan.Bridge.Messages

// A message of an event, row by row, with the screen's other content above and below it.
CardList {
    id: list
    required property MessageBridge message

    readonly property real digitWidth: {
        let widest = 0
        for (const digit of "0123456789") widest = Math.max(widest, bodyMetrics.advanceWidth(digit))
        return widest
    }

    name: qsTr("Description")
    rows: message.rows
    walksRows: message.takesKeys
    widest: Theme.columnWidth * Theme.scale
    delegate: MessageRow {
        offsets: tableOffsets
        columnWidths: row.isTable ? list.message.columnWidths(
            index, headerMetrics.font, cellMetrics.font, Theme.columnMostWidth * Theme.scale) : []
        digitWidth: list.digitWidth
        onFollowed: (cell, href) => list.message.follow(index, cell, href)
    }

    FontMetrics {
        id: bodyMetrics
        font.pointSize: Theme.body
    }
    FontMetrics {
        id: headerMetrics
        font.pointSize: Theme.caption
        font.weight: Font.DemiBold
    }
    FontMetrics {
        id: cellMetrics
        font.pointSize: Theme.subheadline
    }
    TableOffsets {
        id: tableOffsets
    }
    ConfirmLoader {
        isShown: list.message.asksAboutLink
        confirmation: list.message.linkConfirmation
        isDestructive: false
        onDismissed: list.message.cancelLink()
        onConfirmed: list.message.openLink()
    }
}
