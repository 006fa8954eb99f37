import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The bar at the top: the back button and further items at both ends, the title in the middle of the window or, if the
// status needs that place, left of it. If there is not enough room for all, the status gives way first.
Rectangle {
    id: bar
    required property string title
    // Whether the title is hidden if it does not fit: a cut title does not help, and its text is shown elsewhere, too.
    property bool isTitleDispensable: false
    property bool canGoBack: false
    property marker status
    property alias hidesStatusProgress: statusLine.hidesProgress
    // Whether the screen shows the status elsewhere if there is no room for it here.
    property bool isStatusMovable: false
    signal wentBack
    default property alias leading: leadingItems.data
    property alias trailing: trailingItems.data

    // The title keeps its distance from both ends; the status has the room that the title leaves.
    readonly property real freeLeft: leadingRow.x + leadingRow.width + Theme.headerGap
    readonly property real freeRight: trailingItems.x - Theme.headerGap
    readonly property real room: Math.max(0, freeRight - freeLeft)
    readonly property bool hasRoomForTitle: !isTitleDispensable || caption.implicitWidth <= room
    readonly property real statusBegin: hasRoomForTitle ? freeLeft + caption.width + Theme.headerGap : freeLeft
    readonly property real statusRoom: Math.max(0, trailingItems.x - Theme.unit - statusBegin)
    readonly property bool hasRoomForStatus: !isStatusMovable
        || statusRoom >= Math.min(statusLine.naturalWidth, Theme.statusLeastWidth)
    readonly property bool showsStatus: hasRoomForStatus && status.text !== ""

    // What is seen of the first and the last item is flush with the content: a button's edge, or its symbol.
    function emptyRim(items: list<Item>, step: int): real {
        for (let at = step > 0 ? 0 : items.length - 1; at >= 0 && at < items.length; at += step) {
            if (items[at].visible && items[at].width > 0) return items[at] instanceof ToolbarButton ? Theme.unit : 0
        }
        return 0
    }

    implicitHeight: Theme.headerHeight
    color: Theme.card

    Row {
        id: leadingRow
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin - (bar.canGoBack ? Theme.unit : bar.emptyRim(leadingItems.children, 1))
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.halfUnit

        ToolbarButton {
            visible: bar.canGoBack
            symbol: "chevron.left"
            help: qsTr("Back")
            onClicked: bar.wentBack()
        }
        Row {
            id: leadingItems
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.halfUnit
        }
    }

    Label {
        id: caption
        readonly property real end: bar.showsStatus ? statusLine.x - Theme.headerGap : bar.freeRight

        anchors.verticalCenter: parent.verticalCenter
        visible: bar.hasRoomForTitle
        width: Math.min(implicitWidth, bar.room)
        x: Math.floor(Math.max(bar.freeLeft, Math.min((bar.width - width) / 2, end - width)))
        text: bar.title.replace(/[\n\v\f\r\u0085\u2028\u2029]+/g, " ")
        maximumLineCount: 1
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: bar.title

        HoverHandler {
            id: pointer
        }
        ToolTipLoader {
            text: bar.title
            isShown: pointer.hovered && (caption.truncated || caption.text !== bar.title)
        }
    }

    MarkerLine {
        id: statusLine
        anchors.right: trailingItems.left
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.showsStatus
        marker: bar.status
        maximumWidth: bar.statusRoom
    }
    Row {
        id: trailingItems
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin - bar.emptyRim(trailingItems.children, -1)
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.halfUnit
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
}
