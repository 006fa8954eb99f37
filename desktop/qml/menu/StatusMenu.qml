import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge.Menu

// The panel item's rows as a menu of the window, which opens as fast with a thousand pages as with one.
T.Popup {
    id: popup
    required property StatusMenuBridge menu

    x: parent ? parent.width - width : 0
    y: parent ? parent.height + Theme.halfUnit : 0
    width: T.Overlay.overlay ? Math.min(Theme.menuWidth * Theme.scale, T.Overlay.overlay.width - 2 * Theme.unit) : 0
    height: Math.min(list.contentHeight + 2 * padding, T.Overlay.overlay ? T.Overlay.overlay.height - Theme.headerHeight - 2 * Theme.unit : 0)
    margins: Theme.unit
    padding: Theme.halfUnit
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: popup.menu.setOpen(true)
    onOpened: list.currentIndex = -1
    onClosed: popup.menu.setOpen(false)

    // Before the menu closes, which may put another row at that place.
    function choose(place: int) {
        popup.menu.choose(place)
        popup.close()
    }

    contentItem: ListView {
        id: list
        focus: true
        clip: true
        model: popup.menu.rows
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        currentIndex: -1
        keyNavigationEnabled: false
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Menu")

        delegate: StatusMenuRow {
            width: ListView.view.width
            isCurrent: ListView.isCurrentItem
            onEntered: list.currentIndex = index
            onTriggered: popup.choose(index)
        }

        Keys.onDownPressed: currentIndex = popup.menu.nextCommand(currentIndex, 1)
        Keys.onUpPressed: currentIndex = popup.menu.nextCommand(currentIndex < 0 ? count : currentIndex, -1)
        Keys.onReturnPressed: popup.choose(currentIndex)
        Keys.onEnterPressed: popup.choose(currentIndex)
        Keys.onSpacePressed: popup.choose(currentIndex)
        Keys.onPressed: event => {
            const place = event.modifiers & Qt.ControlModifier ? popup.menu.placeOfKey(String.fromCharCode(event.key)) : -1
            if (event.key === Qt.Key_Home) currentIndex = popup.menu.nextCommand(-1, 1)
            else if (event.key === Qt.Key_End) currentIndex = popup.menu.nextCommand(count, -1)
            else if (place >= 0) popup.choose(place)
            else return
            event.accepted = true
        }

        ScrollBarLoader {
            flickable: list
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
}
