import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Kit

CardRow {
    id: delegate
    required property activityRow row

    name: row.title
    description: row.caption
    isPressable: false
    isStop: false

    contentItem: Item {
        implicitHeight: words.implicitHeight

        Symbol {
            id: mark
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.iconSize
            height: Theme.iconSize
            name: delegate.row.symbol
            color: Theme.toneColor(delegate.row.tone)
        }
        Column {
            id: words
            anchors.left: mark.right
            anchors.leftMargin: Theme.unit + Theme.halfUnit
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter

            Label {
                width: parent.width
                text: delegate.row.title
                maximumLineCount: 1
            }
            Label {
                width: parent.width
                text: delegate.row.caption
                font.pointSize: Theme.caption
                color: Theme.secondary
            }
        }
    }
}
