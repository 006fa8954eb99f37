import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Metrics
import Larkspan.Bridge.Monitors
import Larkspan.Kit

// One monitor in the list, with its opened part. Return opens the monitor's screen; the controls in the current row are
// reached with Tab.
CardRow {
    id: delegate
    required property monitorRow row
    // The opened part; null for a row that was never opened.
    property MonitorRowBridge metrics
    signal disclosed
    signal commanded(button: string)

    name: row.title
    description: row.status
    isPressable: false
    topPadding: Theme.rowGap

    // The pointer uses the row's buttons; a press beside them does nothing.
    MouseArea {
        anchors.fill: parent
    }

    contentItem: Column {
        spacing: Theme.unit + Theme.halfUnit

        Item {
            id: header
            // Whether the type stands beside the status, since beside the name it would leave that too little room.
            readonly property bool isNarrow: width - words.x - typePill.width - buttons.width - 2 * Theme.rowGap
                < Theme.wordsLeastWidth

            width: parent.width
            implicitHeight: words.implicitHeight

            Symbol {
                id: mark
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.iconSize
                height: width
                name: delegate.row.statusIcon
                color: Theme.toneColor(delegate.row.tone)
            }
            Column {
                id: words
                anchors.left: mark.right
                anchors.leftMargin: Theme.rowGap
                anchors.right: besideName.left
                anchors.rightMargin: Theme.rowGap

                MarqueeText {
                    id: title
                    width: parent.width
                    layoutHeight: Theme.titleHeight
                    text: delegate.row.title
                    font.weight: Font.DemiBold

                    HoverHandler {
                        id: pointer
                    }
                    ToolTipLoader {
                        text: title.text
                        isShown: pointer.hovered && title.truncated
                    }
                }
                Flow {
                    width: parent.width
                    spacing: Theme.unit

                    Label {
                        width: Math.min(implicitWidth, words.width)
                        height: Math.max(implicitHeight, besideStatus.visible ? besideStatus.height : 0)
                        text: delegate.row.status
                        font.pointSize: Theme.caption
                        color: Theme.toneColor(delegate.row.tone)
                    }
                    Item {
                        id: besideStatus
                        visible: header.isNarrow
                        width: typePill.width
                        height: typePill.height
                    }
                }
            }
            Item {
                id: besideName
                anchors.right: buttons.left
                anchors.rightMargin: header.isNarrow ? 0 : Theme.rowGap
                anchors.verticalCenter: parent.verticalCenter
                width: header.isNarrow ? 0 : typePill.width
                height: typePill.height

                Pill {
                    id: typePill
                    parent: header.isNarrow ? besideStatus : besideName
                    pill: delegate.row.type
                    pointSize: Theme.caption2
                    isBold: true
                    sidePadding: Theme.narrowGap
                    topPadding: Theme.tightGap
                }
            }
            Row {
                id: buttons
                anchors.right: parent.right
                // The sign ends where the content below does, and not its button.
                anchors.rightMargin: -(details.width - details.iconSize) / 2
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.rowGap

                ToolbarButton {
                    activeFocusOnTab: delegate.ListView.isCurrentItem || activeFocus
                    symbol: delegate.row.isOpen ? "chevron.up" : "chevron.down"
                    help: delegate.row.disclosure
                    ink: Theme.secondary
                    iconSize: Theme.smallIconSize
                    isBusy: delegate.row.isLoading
                    onClicked: delegate.disclosed()
                }
                ToolbarButton {
                    id: details
                    activeFocusOnTab: delegate.ListView.isCurrentItem || activeFocus
                    symbol: "info.circle"
                    help: qsTr("Monitor Details")
                    onClicked: delegate.clicked()
                }
            }
        }

        Flow {
            id: badges
            readonly property real tallest: {
                let most = 0
                for (let at = 0; at < shapes.count; ++at) most = Math.max(most, shapes.itemAt(at)?.implicitHeight ?? 0)
                return most
            }

            visible: delegate.row.badges.length > 0
            width: parent.width
            spacing: Theme.unit

            Repeater {
                id: shapes
                model: delegate.row.badges
                MetricBadge {
                    required property metricBadge modelData
                    width: Math.min(implicitWidth, badges.width)
                    height: badges.tallest
                    badge: modelData
                }
            }
        }

        Loader {
            visible: active
            width: parent.width
            active: delegate.row.isOpen && delegate.metrics !== null
            sourceComponent: MonitorMetrics {
                metrics: delegate.metrics
                isCurrent: delegate.ListView.isCurrentItem
            }
        }

        Row {
            spacing: Theme.unit

            Repeater {
                model: delegate.row.buttons.length
                ActionCommand {
                    required property int index
                    button: delegate.row.buttons[index]
                    activeFocusOnTab: delegate.ListView.isCurrentItem || activeFocus
                    isSmall: true
                    onClicked: delegate.commanded(button.id)
                }
            }
            Loader {
                anchors.verticalCenter: parent.verticalCenter
                visible: active
                active: delegate.row.isBusy
                sourceComponent: BusyIndicator {}
            }
        }
    }
}
