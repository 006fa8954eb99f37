import QtQuick
import QtQuick.Templates as T
import Larkspan

// A panel over the dimmed window: a bar with its title, then content that scrolls where the window is small.
// It keeps the focus while it is up, takes Escape, and gives the focus back.
ModalDialog {
    id: sheet
    property int preferredWidth: Theme.sheetWidth
    default property alias content: column.data
    property alias barItems: bar.trailing
    property alias barLeading: bar.leading
    // A sheet whose text could be lost decides itself what Escape does.
    property bool closesByItself: true
    property bool isBusy: false
    property string busyText
    property string alert
    signal closeRequested
    signal alertDismissed

    closePolicy: closesByItself ? T.Popup.CloseOnEscape : T.Popup.NoAutoClose

    width: parent ? Math.min(preferredWidth * Theme.scale, parent.width - 2 * Theme.margin) : 0
    height: parent ? Math.min(Theme.headerHeight + column.implicitHeight + 2 * Theme.margin, parent.height - 2 * Theme.margin) : 0

    contentItem: FocusScope {
        focus: true
        Keys.onPressed: event => {
            InputHand.isKeyboard = true
            event.accepted = !sheet.closesByItself && event.key === Qt.Key_Escape
            if (event.accepted && !sheet.isBusy) sheet.closeRequested()
        }
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title

        // Whatever the keyboard reaches is to be seen.
        readonly property Item focusedItem: Window.activeFocusItem
        onFocusedItemChanged: scroller.reveal(focusedItem)

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

            function reveal(item: Item) {
                let ancestor = item
                while (ancestor && ancestor !== column) ancestor = ancestor.parent
                if (!ancestor) return
                const top = item.mapToItem(contentItem, 0, 0).y - Theme.margin
                const bottom = top + item.height + 2 * Theme.margin
                if (top < contentY) contentY = Math.max(0, top)
                else if (bottom > contentY + height) contentY = Math.min(contentHeight, bottom) - height
            }

            Column {
                id: column
                x: Theme.margin
                y: Theme.margin
                width: scroller.width - 2 * Theme.margin
                spacing: 2 * Theme.unit
            }

            T.ScrollBar.vertical: SlimScrollBar {}
        }

        BusyOverlay {
            visible: sheet.isBusy
            text: sheet.busyText
        }
        PopupLoader {
            isShown: sheet.alert !== ""
            onDismissed: sheet.alertDismissed()
            sourceComponent: ErrorAlert {
                text: sheet.alert
            }
        }
    }
}
