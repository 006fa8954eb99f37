import QtQuick
import Larkspan
import Larkspan.Bridge

// A screen of the window: its header, and below it what it shows or, where there is nothing to show, the placeholder.
// While an action of it runs, nothing in it can be pressed; an action that fails ends in the alert.
FocusScope {
    id: frame
    required property string title
    property alias showsContent: area.showsContent
    property alias placeholder: area.placeholder
    property bool isBusy: false
    property alias busyText: overlay.text
    property alert alert
    property alias status: header.status
    property alias isTitleDispensable: header.isTitleDispensable
    property alias canGoBack: header.canGoBack
    property alias leading: header.leading
    property alias trailing: header.trailing
    default property alias content: area.content
    signal wentBack
    signal retried
    signal settingsRequested
    signal alertDismissed

    HeaderBar {
        id: header
        width: parent.width
        z: 1
        title: frame.title
        onWentBack: frame.wentBack()
    }
    ContentArea {
        id: area
        anchors.fill: parent
        anchors.topMargin: header.height
        focus: true
        onRetried: frame.retried()
        onSettingsRequested: frame.settingsRequested()
    }
    BusyOverlay {
        id: overlay
        visible: frame.isBusy
    }
    AlertLoader {
        alert: frame.alert
        onDismissed: frame.alertDismissed()
    }
}
