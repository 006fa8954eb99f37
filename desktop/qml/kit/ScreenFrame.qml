import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// A screen of the window: its header, and below it what it shows or, where there is nothing to show, the placeholder.
// While an action of it runs, nothing in it can be pressed; an action that fails ends in the alert.
FocusScope {
    id: frame
    required property string title
    property bool showsContent: true
    property placeholder placeholder
    property bool isBusy: false
    property string alert
    property alias status: header.status
    property alias canGoBack: header.canGoBack
    property alias leading: header.leading
    property alias trailing: header.trailing
    default property alias content: middle.data
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

    Item {
        id: middle
        anchors.fill: parent
        anchors.topMargin: header.height
        visible: frame.showsContent
    }

    // Scrolls where a long sentence meets a small window.
    Flickable {
        id: instead
        anchors.fill: middle
        visible: !frame.showsContent
        contentHeight: Math.max(height, state.height + 2 * Theme.margin)
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        PlaceholderState {
            id: state
            x: Math.round((instead.width - width) / 2)
            y: Math.round((instead.contentHeight - height) / 2)
            width: Math.min(Theme.placeholderWidth * Theme.scale, instead.width - 2 * Theme.margin)
            placeholder: frame.placeholder
            onRetried: frame.retried()
            onSettingsRequested: frame.settingsRequested()
        }

        T.ScrollBar.vertical: SlimScrollBar {}
    }

    BusyOverlay {
        visible: frame.isBusy
    }
    PopupLoader {
        isShown: frame.alert !== ""
        onDismissed: frame.alertDismissed()
        sourceComponent: ErrorAlert {
            text: frame.alert
        }
    }
}
