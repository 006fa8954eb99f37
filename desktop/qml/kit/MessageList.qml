import QtQuick
import Larkspan
import Larkspan.Bridge

// A message of an event, row by row, with what the screen tells above and below it.
CardList {
    id: list
    required property MessageBridge message

    // One for headers and rows, so that they stand in line; the widest that either has.
    readonly property font columnFont: Qt.font({pointSize: Theme.subheadline, weight: Font.DemiBold})

    name: qsTr("Description")
    rows: message.rows
    walksRows: message.takesKeys
    widest: Theme.columnWidth * Theme.scale
    delegate: MessageRow {
        offsets: tableOffsets
        columnWidths: row.isTable ? list.message.columnWidths(index, list.columnFont) : []
        onFollowed: (cell, href) => list.message.follow(index, cell, href)
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
