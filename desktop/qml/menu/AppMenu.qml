import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

// The panel item's rows, from the window: with a thousand pages as quick as with one.
T.Popup {
    id: menu
    required property MenuBridge rows

    width: parent ? Math.min(Theme.menuWidth * Theme.scale, T.Overlay.overlay.width - 2 * Theme.unit) : 0
    height: Math.min(list.contentHeight + 2 * padding, T.Overlay.overlay ? T.Overlay.overlay.height - Theme.headerHeight - 2 * Theme.unit : 0)
    margins: Theme.unit
    padding: Theme.halfUnit
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onOpened: list.currentIndex = -1

    function choose(place: int) {
        menu.close()
        menu.rows.choose(place)
    }

    contentItem: ListView {
        id: list
        focus: true
        clip: true
        model: menu.rows
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        currentIndex: -1
        keyNavigationEnabled: false
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Menu")

        delegate: AppMenuRow {
            width: ListView.view.width
            isCurrent: ListView.isCurrentItem
            onEntered: list.currentIndex = index
            onTriggered: menu.choose(index)
        }

        Keys.onDownPressed: currentIndex = menu.rows.nextCommand(currentIndex, 1)
        Keys.onUpPressed: currentIndex = menu.rows.nextCommand(currentIndex < 0 ? count : currentIndex, -1)
        Keys.onReturnPressed: menu.choose(currentIndex)
        Keys.onEnterPressed: menu.choose(currentIndex)
        Keys.onSpacePressed: menu.choose(currentIndex)
        Keys.onPressed: event => {
            const place = event.modifiers & Qt.ControlModifier ? menu.rows.placeOfKey(String.fromCharCode(event.key)) : -1
            if (event.key === Qt.Key_Home) currentIndex = menu.rows.nextCommand(-1, 1)
            else if (event.key === Qt.Key_End) currentIndex = menu.rows.nextCommand(count, -1)
            else if (place >= 0) menu.choose(place)
            else return
            event.accepted = true
        }

        T.ScrollBar.vertical: SlimScrollBar {}
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
