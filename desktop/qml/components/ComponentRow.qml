import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Components
import Larkspan.Kit

// A component, or the heading of a section, which separates the sections' cards.
CardRow {
    id: delegate
    required property componentRow row
    readonly property real gap: index > 0 ? 2 * Theme.unit : 0

    name: row.title
    description: row.status.text
    isPressable: !row.isHeading
    isStop: !row.isHeading
    hasDivider: row.followsComponent && !row.isHeading
    topPadding: row.isHeading ? gap : 0
    implicitHeight: row.isHeading ? heading.implicitHeight + gap + Theme.unit
        : Math.max(Theme.rowHeight, line.implicitHeight + 2 * Theme.unit)
    Accessible.role: row.isHeading ? Accessible.Heading : Accessible.ListItem

    Rectangle {
        z: -2
        anchors.fill: parent
        visible: delegate.row.isHeading
        color: Theme.window
    }
    CardEnd {
        z: -2
        width: parent.width
        visible: !delegate.row.isHeading && !delegate.row.followsComponent
        isFirst: true
    }
    CardEnd {
        z: -2
        width: parent.width
        anchors.bottom: parent.bottom
        visible: !delegate.row.isHeading && !delegate.row.precedesComponent
        isFirst: false
    }

    contentItem: Item {
        Label {
            id: heading
            visible: delegate.row.isHeading
            x: -delegate.leftPadding
            width: parent.width - 2 * x
            text: delegate.row.isHeading ? delegate.row.title : ""
            font.pointSize: Theme.subheadline
            font.weight: Font.DemiBold
            color: Theme.secondary
            maximumLineCount: 1
            Accessible.ignored: true
        }
        RowContent {
            id: line
            anchors.fill: parent
            visible: !delegate.row.isHeading
            wordsWidth: delegate.row.description === "" ? title.implicitWidth : Infinity
            endWidth: pill.implicitWidth
            mark: Symbol {
                width: Theme.iconSize
                height: Theme.iconSize
                name: delegate.row.symbol
                color: Theme.toneColor(delegate.row.tone)
            }
            end: Pill {
                id: pill
                width: Math.min(implicitWidth, line.mostWidth)
                pill: delegate.row.status
                weight: Font.Medium
            }

            MarqueeText {
                id: title
                width: parent.width
                layoutHeight: Theme.titleHeight
                text: delegate.row.isHeading ? "" : delegate.row.title
                font.weight: Font.DemiBold
            }
            Label {
                width: parent.width
                visible: text !== ""
                text: delegate.row.description
                font.pointSize: Theme.caption
                color: Theme.secondary
                wrapMode: Text.Wrap
            }
        }
    }
}
