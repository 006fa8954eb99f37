import QtQuick
import QtQuick.Templates as T
import Larkspan.Bridge.Menu
import Larkspan.Kit

// The panel item's rows as a menu of the window, which opens as fast with a thousand pages as with one. Only the pages
// scroll; in a window too small for that, everything above the commands.
T.Popup {
    id: popup
    required property StatusMenuBridge menu
    property int current: -1

    readonly property real most: T.Overlay.overlay
        ? T.Overlay.overlay.height - Theme.headerHeight - Theme.halfUnit - Theme.unit - 2 * padding : 0
    readonly property real allPages: pages.count * Theme.menuRowHeight
    readonly property real roomForPages: most - summary.height - incidents.height - commands.height
    readonly property bool scrollsAsOne: roomForPages < Math.min(allPages, 3 * Theme.menuRowHeight)
    readonly property real allThatScrolls: summary.height + allPages + incidents.height
    readonly property real roomAsOne: most - commands.height

    x: parent ? parent.width - width : 0
    y: Theme.menuTop
    width: T.Overlay.overlay ? Math.min(Theme.menuWidth * Theme.scale, T.Overlay.overlay.width - 2 * Theme.unit) : 0
    height: column.height + 2 * padding
    margins: Theme.unit
    padding: Theme.halfUnit
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        popup.menu.setOpen(true)
        current = -1
        pages.positionViewAtBeginning()
    }
    onClosed: popup.menu.setOpen(false)
    onCurrentChanged: {
        const row = current - pages.first
        if (row === 0) pages.positionViewAtBeginning()
        else if (row > 0 && row < pages.count) pages.positionViewAtIndex(row, ListView.Contain)
    }

    // Where what scrolls as one ends within its room: in the middle of a row, which shows that it goes on, and never at
    // a separator, since another one follows.
    function endWithin(room: real): real {
        const pagesEnd = summary.height + allPages
        const incident = incidents.lastCut(room - pagesEnd)
        const page = Math.min(pages.count - 1, Math.floor((room - summary.height) / Theme.menuRowHeight - 0.3))
        if (incident > 0) return pagesEnd + incident
        if (page < 0) return summary.lastCut(room)
        return Math.min(room, summary.height + Math.floor((page + 0.5) * Theme.menuRowHeight))
    }

    // Before the menu closes, which may put another row at that place.
    function choose(place: int) {
        popup.menu.choose(place)
        popup.close()
    }
    function go(from: int, step: int) {
        const next = popup.menu.nextCommand(from, step)
        // What stands above the first command, and below the last page, is not reached in another way.
        if (next === current && step < 0) pages.positionViewAtBeginning()
        else if (next >= incidents.first) pages.positionViewAtEnd()
        current = next
    }

    contentItem: Item {
        focus: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Menu")

        Keys.onDownPressed: popup.go(popup.current, 1)
        Keys.onUpPressed: popup.go(popup.current < 0 ? commands.first + commands.count : popup.current, -1)
        Keys.onReturnPressed: popup.choose(popup.current)
        Keys.onEnterPressed: popup.choose(popup.current)
        Keys.onSpacePressed: popup.choose(popup.current)
        Keys.onPressed: event => {
            const place = event.modifiers & Qt.ControlModifier ? popup.menu.placeOfKey(String.fromCharCode(event.key)) : -1
            if (event.key === Qt.Key_Home) popup.go(-1, 1)
            else if (event.key === Qt.Key_End) popup.go(commands.first + commands.count, -1)
            else if (place >= 0) popup.choose(place)
            else return
            event.accepted = true
        }

        Column {
            id: column
            width: parent.width

            Item {
                id: above
                width: parent.width
                height: popup.scrollsAsOne ? 0 : summary.height

                StatusMenuPart {
                    id: summary
                    parent: popup.scrollsAsOne && pages.headerItem ? pages.headerItem : above
                    model: popup.menu.summary
                    current: popup.current
                }
            }
            ListView {
                id: pages
                readonly property int first: summary.count

                width: parent.width
                height: !popup.scrollsAsOne ? Math.min(popup.allPages, popup.roomForPages)
                    : popup.allThatScrolls <= popup.roomAsOne ? popup.allThatScrolls : popup.endWithin(popup.roomAsOne)
                clip: true
                model: popup.menu.pages
                reuseItems: true
                boundsBehavior: Flickable.StopAtBounds
                keyNavigationEnabled: false

                header: Item {
                    width: pages.width
                    height: popup.scrollsAsOne ? summary.height : 0
                    onHeightChanged: if (popup.current < 0) pages.positionViewAtBeginning()
                }
                footer: Item {
                    width: pages.width
                    height: popup.scrollsAsOne ? incidents.height : 0
                }
                delegate: StatusMenuRow {
                    width: ListView.view.width
                    isCurrent: pages.first + index === popup.current
                    onEntered: popup.current = pages.first + index
                    onTriggered: popup.choose(pages.first + index)
                }

                ScrollBarLoader {
                    flickable: pages
                }
            }
            Item {
                id: below
                width: parent.width
                height: popup.scrollsAsOne ? 0 : incidents.height

                StatusMenuPart {
                    id: incidents
                    parent: popup.scrollsAsOne && pages.footerItem ? pages.footerItem : below
                    model: popup.menu.incidents
                    first: pages.first + pages.count
                    current: popup.current
                }
            }
            StatusMenuPart {
                id: commands
                width: parent.width
                model: popup.menu.commands
                first: incidents.first + incidents.count
                current: popup.current
                onEntered: place => popup.current = place
                onTriggered: place => popup.choose(place)
            }
        }
    }

    background: Surface {}
    exit: FadeOut {}

    FadeIn {
        target: popup
    }
}
