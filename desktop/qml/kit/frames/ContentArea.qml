import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// What a screen shows or, where there is nothing to show, the placeholder; over both the alert of what has failed.
FocusScope {
    id: area
    property bool showsContent: true
    property placeholder placeholder
    property alert alert
    property alias hasBoldTitle: state.hasBoldTitle
    default property alias content: middle.data
    signal retried
    signal settingsRequested
    signal alertDismissed

    FocusScope {
        id: middle
        anchors.fill: parent
        visible: area.showsContent
        // Otherwise hidden content would keep the focus, and Tab would not leave it.
        focus: area.showsContent
    }

    // Scrolls if a long sentence does not fit into a small window, and can be pulled down like the list.
    Flickable {
        id: instead
        anchors.fill: parent
        visible: !area.showsContent
        contentHeight: Math.max(height, state.height + 2 * Theme.margin)
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.DragOverBounds
        clip: true
        onDragEnded: if (verticalOvershoot < -Theme.pullDistance) area.retried()

        PlaceholderState {
            id: state
            x: Math.round((instead.width - width) / 2)
            y: Math.round((instead.contentHeight - height) / 2)
            width: Math.min(Theme.placeholderWidth * Theme.scale, instead.width - 2 * Theme.margin)
            placeholder: area.placeholder
            mostHeight: instead.height - 2 * Theme.margin
            onRetried: area.retried()
            onSettingsRequested: area.settingsRequested()
        }

        Scrolling {
            flickable: instead
        }
        ScrollBarLoader {
            flickable: instead
        }
    }

    AlertLoader {
        alert: area.alert
        onDismissed: area.alertDismissed()
    }
}
