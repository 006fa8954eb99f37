import QtQuick
import Larkspan
import Larkspan.Bridge

// A page in summary. There may be many current events, so they are the list, and the rest is above and below it.
CardList {
    id: overview
    required property StatusPageDetailBridge page
    readonly property real textWidth: Theme.readingWidth * Theme.scale

    rows: page.activity
    name: qsTr("Current Activity")
    walksRows: false
    topMargin: Theme.tabsGap

    above: Column {
        spacing: Theme.columnSpacing
        bottomPadding: Theme.unit

        StatusHeader {
            width: parent.width
            headline: overview.page.status
        }
        GroupBox {
            visible: overview.page.information.length > 0
            width: parent.width
            widest: overview.textWidth
            title: qsTr("Status Page")

            Repeater {
                // The number, so that a line keeps its focus when its text changes by itself.
                model: overview.page.information.length
                FactLine {
                    required property int index
                    width: parent.width
                    fact: overview.page.information[index]
                    onFollowed: overview.page.openPublicURL()
                }
            }
        }
        GroupBox {
            width: parent.width
            title: overview.name
            hasCard: overview.count === 0

            IconLabel {
                width: parent.width
                symbol: overview.page.quiet.symbol
                text: overview.page.quiet.text
                tone: overview.page.quiet.tone
            }
        }
    }
    delegate: ActivityRow {}
    below: Column {
        spacing: Theme.columnSpacing
        topPadding: Theme.columnSpacing

        GroupBox {
            visible: overview.page.about !== ""
            width: parent.width
            widest: overview.textWidth
            title: qsTr("About This Status Page")

            Label {
                width: parent.width
                text: overview.page.about
                color: Theme.secondary
                wrapMode: Text.Wrap
            }
        }
        GroupBox {
            visible: overview.page.uptime.length > 0
            width: parent.width
            widest: overview.textWidth
            title: qsTr("Uptime")

            Repeater {
                model: overview.page.uptime
                FactLine {
                    required property fact modelData
                    width: parent.width
                    fact: modelData
                }
            }
            Label {
                visible: text !== ""
                width: parent.width
                text: overview.page.moreUptime
                color: Theme.secondary
            }
        }
    }
}
