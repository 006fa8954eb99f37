import QtQuick
import Larkspan
import Larkspan.Bridge

// A status word on a tint of its own colour, with a symbol before it where there is one.
Rectangle {
    id: shape
    required property pill pill
    property real pointSize: Theme.caption
    property real tint: Theme.pillOpacity
    property real sidePadding: Theme.unit
    property real topPadding: Theme.halfUnit
    property bool isBold: false

    implicitWidth: content.implicitWidth + 2 * sidePadding
    implicitHeight: label.implicitHeight + 2 * topPadding
    radius: Theme.pillRadius
    color: Qt.alpha(Theme.toneColor(pill.tone), tint)

    Row {
        id: content
        anchors.centerIn: parent
        spacing: Theme.halfUnit

        Symbol {
            visible: shape.pill.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.smallIconSize
            height: width
            name: shape.pill.symbol
            color: Theme.toneColor(shape.pill.tone)
        }
        Label {
            id: label
            text: shape.pill.text
            color: Theme.toneColor(shape.pill.tone)
            font.pointSize: shape.pointSize
            font.weight: shape.isBold ? Font.Bold : Font.Normal
        }
    }
}
