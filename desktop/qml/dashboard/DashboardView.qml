import QtQuick
import QtQuick.Templates as T
import Larkspan
import Larkspan.Bridge

FocusScope {
    id: view
    required property DashboardBridge dashboard
    required property MenuBridge menuRows

    // The list has the focus from the start; its ring shows only to those who use the keyboard.
    property bool isKeyboardInUse: false
    Keys.onPressed: event => {
        isKeyboardInUse = true
        event.accepted = false
    }
    TapHandler {
        onPressedChanged: if (pressed) view.isKeyboardInUse = false
    }

    // A sheet that closes leaves the focus with nobody, and what had it before may be gone meanwhile.
    Window.onActiveFocusItemChanged: takeFocusBack()
    function takeFocusBack() {
        if (Window.activeFocusItem !== Window.contentItem) return
        forceActiveFocus(Qt.PopupFocusReason)
        if (!Window.activeFocusItem.visible) list.forceActiveFocus(Qt.PopupFocusReason)
    }

    HeaderBar {
        id: header
        width: parent.width
        z: 1
        title: view.dashboard.windowTitle

        ToolbarButton {
            symbol: "gearshape"
            help: qsTr("Settings")
            onClicked: view.dashboard.openSettings()
        }
        ToolbarButton {
            id: intervalButton
            symbol: "timer"
            help: qsTr("Refresh Interval")
            isMenuOpen: intervalMenu.visible
            onClicked: intervalMenu.popup(intervalButton, 0, intervalButton.height + Theme.halfUnit)

            KitMenu {
                id: intervalMenu
                onClosed: intervalButton.forceActiveFocus(Qt.PopupFocusReason)
                Repeater {
                    model: view.dashboard.refreshIntervalLabels
                    KitMenuItem {
                        required property int index
                        required property string modelData
                        text: modelData
                        onTriggered: view.dashboard.chooseRefreshInterval(index)
                    }
                }
            }
        }

        trailing: [
            StatusText {
                anchors.verticalCenter: parent.verticalCenter
                dashboard: view.dashboard
            },
            ToolbarButton {
                symbol: "arrow.clockwise"
                help: qsTr("Refresh Now")
                enabled: view.dashboard.isRefreshEnabled
                onClicked: view.dashboard.refresh()
            },
            ToolbarButton {
                id: menuButton
                symbol: "line.3.horizontal"
                help: qsTr("Menu")
                isMenuOpen: menu.visible
                onClicked: menu.open()

                AppMenu {
                    id: menu
                    x: menuButton.width - width
                    y: menuButton.height + Theme.halfUnit
                    rows: view.menuRows
                    onClosed: menuButton.forceActiveFocus(Qt.PopupFocusReason)
                }
            }
        ]
    }

    // Scrolls where a long sentence meets a small window.
    Flickable {
        id: middle
        anchors.fill: parent
        anchors.topMargin: header.height
        visible: !view.dashboard.showsList
        contentHeight: Math.max(height, placeholder.height + 2 * Theme.margin)
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        PlaceholderState {
            id: placeholder
            x: Math.round((middle.width - width) / 2)
            y: Math.round((middle.contentHeight - height) / 2)
            width: Math.min(Theme.placeholderWidth * Theme.scale, middle.width - 2 * Theme.margin)
            symbol: view.dashboard.placeholderSymbol
            tone: view.dashboard.placeholderTone
            title: view.dashboard.placeholderTitle
            text: view.dashboard.placeholderText
            showsProgress: view.dashboard.placeholderShowsProgress

            CommandButton {
                visible: view.dashboard.placeholderOffersSettings
                text: qsTr("Open Settings")
                isProminent: !view.dashboard.placeholderOffersRetry
                onClicked: view.dashboard.openSettings()
            }
            CommandButton {
                visible: view.dashboard.placeholderOffersRetry
                text: qsTr("Retry")
                isProminent: true
                onClicked: view.dashboard.refresh()
            }
        }

        T.ScrollBar.vertical: SlimScrollBar {}
    }

    ListView {
        id: list
        anchors.fill: parent
        anchors.topMargin: header.height
        visible: view.dashboard.showsList
        focus: true
        activeFocusOnTab: true
        clip: true
        topMargin: Theme.margin
        bottomMargin: notice.visible ? notice.height + 2 * Theme.margin : Theme.margin
        leftMargin: Theme.margin
        rightMargin: Theme.margin
        model: view.dashboard.rows
        reuseItems: true
        keyNavigationEnabled: true
        boundsBehavior: Flickable.DragOverBounds
        highlightMoveDuration: Theme.quick
        Accessible.role: Accessible.List
        Accessible.name: view.dashboard.listHeading

        // A headline that takes more lines pushes the rows down; a list at its top stays there.
        property bool isScrolled: false
        onContentYChanged: isScrolled = contentY > originY

        header: Item {
            width: ListView.view.width - 2 * Theme.margin
            implicitHeight: heading.y + heading.implicitHeight + Theme.unit
            onHeightChanged: if (!list.isScrolled) list.contentY = list.originY - list.topMargin
            HeadlineCard {
                id: headline
                width: parent.width
                dashboard: view.dashboard
            }
            Label {
                id: heading
                x: Theme.halfUnit
                y: headline.height + 2 * Theme.unit + Theme.halfUnit
                text: view.dashboard.listHeading
                font.pointSize: Theme.subheadline
                font.weight: Font.DemiBold
                color: Theme.secondary
                Accessible.role: Accessible.Heading
            }
        }

        delegate: StatusPageRow {
            width: ListView.view.width - 2 * Theme.margin
            showsFocus: view.isKeyboardInUse && Accessible.focused
            isSelected: index === view.dashboard.selectedRow
            onClicked: view.dashboard.openPage(pageId)
            onYChanged: Qt.callLater(list.settleReadingOrder)
            Component.onCompleted: Qt.callLater(list.settleReadingOrder)
            ListView.onReused: Qt.callLater(list.settleReadingOrder)
        }
        function settleReadingOrder() {
            ReadingOrder.follow(list.contentItem)
        }

        // One card under all rows, however many of them exist.
        Rectangle {
            parent: list.contentItem
            y: 0
            z: -1
            width: list.width - 2 * Theme.margin
            height: list.contentHeight - (list.headerItem ? list.headerItem.height : 0)
            radius: Theme.cardRadius
            color: Theme.card
            border.width: Theme.hairline
            border.color: Theme.line
        }

        T.ScrollBar.vertical: SlimScrollBar {
            parent: view
            anchors.right: parent.right
            anchors.top: list.top
            anchors.bottom: list.bottom
        }

        // The page that the menu asks for is to be seen.
        readonly property int selectedRow: view.dashboard.selectedRow
        onSelectedRowChanged: if (selectedRow >= 0) currentIndex = selectedRow
        Keys.onReturnPressed: if (currentItem) (currentItem as StatusPageRow).clicked()
        Keys.onEnterPressed: if (currentItem) (currentItem as StatusPageRow).clicked()

        onDragEnded: if (verticalOvershoot < -Theme.pullDistance) view.dashboard.refresh()
        Keys.onPressed: event => {
            event.accepted = false
            const page = Math.max(1, Math.floor(height / Theme.rowHeight) - 1)
            const target = {
                [Qt.Key_Home]: 0,
                [Qt.Key_End]: count - 1,
                [Qt.Key_PageUp]: Math.max(0, currentIndex - page),
                [Qt.Key_PageDown]: Math.min(count - 1, currentIndex + page)
            }[event.key]
            if (target === undefined) return
            currentIndex = target
            event.accepted = true
        }
    }

    RefreshFailureNotice {
        id: notice
        dashboard: view.dashboard
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.margin
    }

    Shortcut {
        sequences: ["F5", "Ctrl+R"]
        enabled: view.dashboard.isRefreshEnabled
        onActivated: view.dashboard.refresh()
    }
}
