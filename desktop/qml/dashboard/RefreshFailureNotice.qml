import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Kit

// A notice over the list that its content may be outdated.
Rectangle {
    id: notice
    required property DashboardBridge dashboard
    // It covers the end of the list, which can be scrolled clear of it.
    readonly property bool floats: true

    implicitWidth: content.implicitWidth + 3 * Theme.unit
    implicitHeight: content.implicitHeight + 2 * Theme.unit
    radius: Theme.cardRadius
    color: Theme.card
    border.width: Theme.hairline
    border.color: Theme.orange
    Accessible.role: Accessible.AlertMessage
    Accessible.name: dashboard.refreshFailedText

    // It fades in but disappears at once, since its text is no longer true then.
    visible: dashboard.showsRefreshFailure
    opacity: visible ? 1 : 0
    Behavior on opacity {
        NumberAnimation {
            duration: Theme.calm
            easing.type: Easing.OutCubic
        }
    }

    Row {
        id: content
        anchors.centerIn: parent
        spacing: Theme.unit + Theme.halfUnit

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.iconSize
            height: Theme.iconSize
            name: "exclamationmark.triangle.fill"
            color: Theme.orange
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, notice.parent.width - 6 * Theme.margin - retry.width)
            text: notice.dashboard.refreshFailedText
            font.pointSize: Theme.subheadline
            wrapMode: Text.Wrap
        }
        CommandButton {
            id: retry
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Retry")
            onClicked: notice.dashboard.refresh()
        }
    }
}
