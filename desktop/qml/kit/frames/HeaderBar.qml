import QtQuick
import Larkspan
import Larkspan.Bridge

// The bar at the top: the back button and further items at both ends, the title in the middle of the window while there
// is room for it.
Rectangle {
    id: bar
    required property string title
    // Whether the title is hidden if it does not fit: a cut title does not help, and its text is shown elsewhere, too.
    property bool isTitleDispensable: false
    property bool canGoBack: false
    property marker status
    signal wentBack
    default property alias leading: leadingItems.data
    property alias trailing: trailingItems.data

    readonly property real freeLeft: leadingRow.x + leadingRow.width + Theme.unit
    readonly property real freeRight: trailingRow.x - Theme.unit

    implicitHeight: Theme.headerHeight
    color: Theme.card

    Row {
        id: leadingRow
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit + Theme.halfUnit
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
        readonly property real room: Math.max(0, bar.freeRight - bar.freeLeft)

        anchors.verticalCenter: parent.verticalCenter
        visible: !bar.isTitleDispensable || implicitWidth <= room
        width: Math.min(implicitWidth, room)
        x: Math.round(Math.max(bar.freeLeft, Math.min((bar.width - width) / 2, bar.freeRight - width)))
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

    Row {
        id: trailingRow
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit + Theme.halfUnit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.halfUnit

        MarkerLine {
            anchors.verticalCenter: parent.verticalCenter
            marker: bar.status
            maximumWidth: bar.width - bar.freeLeft - trailingItems.width - 3 * Theme.unit
        }
        Row {
            id: trailingItems
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.halfUnit
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
}
