import QtQuick
import Larkspan.Bridge

// A screen of the window: its header, and below it its content or, if there is none, the placeholder. While one of its
// actions runs, it ignores the pointer and the keyboard; an action that fails ends with an alert.
FocusScope {
    id: frame
    required property string title
    property alias showsContent: area.showsContent
    property alias placeholder: area.placeholder
    property bool isBusy: false
    property alias busyText: overlay.text
    property alias alert: area.alert
    property alias status: header.status
    property alias hidesStatusProgress: header.hidesStatusProgress
    property alias isStatusMovable: header.isStatusMovable
    readonly property alias hasRoomForStatus: header.hasRoomForStatus
    property alias isTitleDispensable: header.isTitleDispensable
    property alias canGoBack: header.canGoBack
    property alias leading: header.leading
    property alias trailing: header.trailing
    default property alias content: area.content
    signal wentBack
    signal retried
    signal settingsRequested
    signal alertDismissed

    // The overlay takes the pointer; as nothing beneath it is enabled, the frame takes the keys.
    Keys.onPressed: event => { event.accepted = isBusy }

    HeaderBar {
        id: header
        enabled: !frame.isBusy
        width: parent.width
        z: 1
        title: frame.title
        onWentBack: frame.wentBack()
    }
    ContentArea {
        id: area
        anchors.fill: parent
        anchors.topMargin: header.height
        enabled: !frame.isBusy
        focus: true
        onRetried: frame.retried()
        onSettingsRequested: frame.settingsRequested()
        onAlertDismissed: frame.alertDismissed()
    }
    BusyOverlay {
        id: overlay
        visible: frame.isBusy
    }
}
