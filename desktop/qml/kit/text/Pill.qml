import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A status word on a tint of its own colour, with an optional symbol before it.
Rectangle {
    id: shape
    required property pill pill
    property real pointSize: Theme.caption
    property real tint: Theme.pillOpacity
    property real sidePadding: Theme.unit
    property real topPadding: Theme.halfUnit
    property bool isBold: false
    property int weight: isBold ? Font.Bold : Font.Normal
    readonly property real symbolWidth: pill.symbol === "" ? 0 : Theme.smallIconSize + content.spacing

    implicitWidth: symbolWidth + label.implicitWidth + 2 * sidePadding
    implicitHeight: label.implicitHeight + 2 * topPadding
    baselineOffset: content.y + label.y + label.baselineOffset
    radius: Theme.pillRadius
    color: Theme.tinted(pill.tone, tint)
    border.width: Theme.toneOutline(pill.tone)
    border.color: Theme.toneColor(pill.tone)

    Row {
        id: content
        anchors.centerIn: parent
        spacing: Theme.pillGap

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
            width: Math.min(implicitWidth, shape.width - shape.symbolWidth - 2 * shape.sidePadding)
            text: shape.pill.text
            maximumLineCount: 1
            color: Theme.toneColor(shape.pill.tone)
            font.pointSize: shape.pointSize
            font.weight: shape.weight
        }
    }
}
