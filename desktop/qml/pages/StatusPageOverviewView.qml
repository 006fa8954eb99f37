import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Kit

// A page in summary. There may be many current events, so they are the list, and the rest is above and below it.
CardList {
    id: overview
    required property StatusPageDetailBridge page

    rows: page.activity
    name: qsTr("Current Activity")
    walksRows: false
    // A text of one or two lines reads worse the longer its lines are.
    rightMargin: Math.max(leftMargin, width - leftMargin - Theme.readingWidth * Theme.scale)
    topMargin: Theme.tabsGap

    above: Column {
        spacing: Theme.columnSpacing
        bottomPadding: overview.count > 0 ? Theme.unit : 0

        StatusHeader {
            width: parent.width
            headline: overview.page.status
        }
        GroupBox {
            visible: overview.page.information.length > 0
            width: parent.width
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
            title: qsTr("About This Status Page")

            Label {
                width: parent.width
                text: overview.page.about
                color: Theme.secondary
                wrapMode: Text.Wrap
            }
        }
        UptimeGroup {
            visible: overview.page.uptime.length > 0
            width: parent.width
            lines: overview.page.uptime
            more: overview.page.moreUptime
        }
    }
}
