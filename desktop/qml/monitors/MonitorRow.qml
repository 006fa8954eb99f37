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
                anchors.right: trailing.left
                anchors.rightMargin: Theme.rowGap

                MarqueeText {
                    width: parent.width
                    layoutHeight: Theme.titleHeight
                    text: delegate.row.title
                    font.weight: Font.DemiBold
                }
                Label {
                    width: parent.width
                    text: delegate.row.status
                    font.pointSize: Theme.caption
                    color: Theme.toneColor(delegate.row.tone)
                }
            }
            Row {
                id: trailing
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.rowGap

                Pill {
                    anchors.verticalCenter: parent.verticalCenter
                    pill: delegate.row.type
                    pointSize: Theme.caption2
                    isBold: true
                    sidePadding: Theme.narrowGap
                    topPadding: Theme.tightGap
                }
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
                    activeFocusOnTab: delegate.ListView.isCurrentItem || activeFocus
                    symbol: "info.circle"
                    help: qsTr("Monitor Details")
                    onClicked: delegate.clicked()
                }
            }
        }

        Flow {
            id: badges
            visible: delegate.row.badges.length > 0
            width: parent.width
            spacing: Theme.unit

            Repeater {
                model: delegate.row.badges
                MetricBadge {
                    required property metricBadge modelData
                    width: Math.min(implicitWidth, badges.width)
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
