import QtQuick
import QtQuick.Templates as T
import Larkspan.Bridge
import Larkspan.Kit

// A panel over the dimmed window: a bar with its title, then content that scrolls if the window is small. It keeps the
// focus while it is open, closes on Escape, and gives the focus back.
ModalDialog {
    id: sheet
    property int preferredWidth: Theme.sheetWidth
    default property alias content: scroller.content
    property alias barItems: bar.trailing
    property alias barLeading: bar.leading
    // Whether Escape closes it; a sheet with text that could be lost decides that itself.
    property bool closesByItself: true
    property bool isBusy: false
    property string busyText
    property alert alert
    // What is kept in view, also while the content grows; a sheet without it opens at its top.
    property Item keptInView: null
    signal closeRequested
    signal alertDismissed

    function reveal(item: Item) {
        scroller.reveal(item)
    }
    onKeptInViewChanged: reveal(keptInView)

    closePolicy: closesByItself ? T.Popup.CloseOnEscape : T.Popup.NoAutoClose

    width: parent ? Math.min(preferredWidth * Theme.scale, parent.width - 2 * Theme.margin) : 0
    wholeHeight: bar.height + scroller.contentHeight

    contentItem: FocusScope {
        focus: true
        clip: true
        Keys.onPressed: event => {
            const leads = !sheet.closesByItself && event.key === Qt.Key_Escape
            event.accepted = leads || sheet.isBusy
            if (leads && !sheet.isBusy) sheet.closeRequested()
        }
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title

        HeaderBar {
            id: bar
            width: parent.width
            color: "transparent"
            enabled: !sheet.isBusy
            title: sheet.title
        }

        ScrollingColumn {
            id: scroller
            anchors.top: bar.bottom
            width: parent.width
            // Laid out once, however long the sheet takes to get there.
            height: sheet.lastHeight - bar.height
            // A sheet does not open where its focus is.
            followsFocus: sheet.isPlaced
            onContentHeightChanged: sheet.reveal(sheet.keptInView)
            onHeightChanged: sheet.reveal(sheet.keptInView)
            enabled: !sheet.isBusy
        }

        BusyOverlay {
            radius: Theme.cardRadius
            visible: sheet.isBusy
            text: sheet.busyText
        }
        AlertLoader {
            alert: sheet.alert
            onDismissed: sheet.alertDismissed()
        }
    }
}
