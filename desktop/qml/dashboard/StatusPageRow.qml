import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Bridge.Workspace

CardRow {
    id: delegate
    required property statusPageRow row

    name: row.title
    description: row.status.text

    contentItem: Item {
        implicitHeight: pill.implicitHeight

        Symbol {
            id: mark
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.iconSize
            height: Theme.iconSize
            name: delegate.row.symbol
            color: Theme.toneColor(delegate.row.tone)
        }
        Label {
            anchors.left: mark.right
            anchors.leftMargin: Theme.unit + Theme.halfUnit
            anchors.right: pill.left
            anchors.rightMargin: 2 * Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            text: delegate.row.title
            maximumLineCount: 1
        }
        Pill {
            id: pill
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            pill: delegate.row.status
        }
    }
}
