import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Kit

CardRow {
    id: delegate
    required property statusPageRow row

    name: row.title
    description: row.status.text

    contentItem: RowContent {
        wordsWidth: title.implicitWidth
        gap: 2 * Theme.unit
        mark: Symbol {
            width: Theme.iconSize
            height: Theme.iconSize
            name: delegate.row.symbol
            color: Theme.toneColor(delegate.row.tone)
        }
        end: Pill {
            pill: delegate.row.status
        }

        Label {
            id: title
            width: parent.width
            text: delegate.row.title
            maximumLineCount: 1
        }
    }
}
