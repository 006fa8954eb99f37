import QtQuick
import Larkspan.Bridge.Messages
import Larkspan.Kit

// A message of an event, row by row, with the screen's other content above and below it.
CardList {
    id: list
    required property MessageBridge message
    // Whether it is scrolled to its end whenever it grows.
    property bool keepsEnd: false

    name: qsTr("Description")
    rows: message.rows
    walksRows: message.takesKeys
    // With a buffer, rows are made later, and Qt complains if the message goes meanwhile.
    cacheBuffer: 0
    delegate: MessageRow {
        offsets: tableOffsets
        columnWidths: row.isTable ? list.message.columnWidths(
            index, headerMetrics.font, cellMetrics.font, Theme.columnMostWidth * Theme.scale) : []
        digitWidth: bodyMetrics.digitWidth
        onFollowed: (cell, href) => list.message.follow(index, cell, href)
    }

    DigitMetrics {
        id: bodyMetrics
        font.pointSize: Theme.body
    }
    onKeepsEndChanged: later.restart()
    onContentHeightChanged: if (keepsEnd) later.restart()
    onHeightChanged: if (keepsEnd) later.restart()
    // When the new heights are known.
    Timer {
        id: later
        interval: 0
        onTriggered: list.showEnd()
    }
    function showEnd() {
        const begin = originY - topMargin
        contentY = keepsEnd ? Math.max(begin, originY + contentHeight + bottomMargin - height) : begin
    }

    // Above the end there may be rows whose heights are only estimated until they are made.
    function showFocusAtEnd() {
        positionViewAtEnd()
        follow()
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
