import QtQuick
import QtQuick.Templates as T
import Larkspan

// A panel over the dimmed window: a bar with its title, then content that scrolls where the window is small.
// It keeps the focus while it is up, takes Escape, and gives the focus back.
T.Dialog {
    id: sheet
    property int preferredWidth: Theme.sheetWidth
    default property alias content: column.data
    property alias barItems: bar.trailing

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: parent ? Math.min(preferredWidth * Theme.scale, parent.width - 2 * Theme.margin) : 0
    height: parent ? Math.min(Theme.headerHeight + column.implicitHeight + 2 * Theme.margin, parent.height - 2 * Theme.margin) : 0
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    T.Overlay.modal: Dimming {}

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.window
        border.width: Theme.hairline
        border.color: Theme.line
    }

    contentItem: FocusScope {
        focus: true

        HeaderBar {
            id: bar
            width: parent.width
            color: "transparent"
            title: sheet.title
        }

        Flickable {
            id: scroller
            anchors.fill: parent
            anchors.topMargin: bar.height
            contentHeight: column.implicitHeight + 2 * Theme.margin
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            Column {
                id: column
                x: Theme.margin
                y: Theme.margin
                width: scroller.width - 2 * Theme.margin
                spacing: 2 * Theme.unit
            }

            T.ScrollBar.vertical: SlimScrollBar {}
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.calm; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
}
