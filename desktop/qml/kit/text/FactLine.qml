import QtQuick
import Larkspan
import Larkspan.Bridge

// A labelled value in one line, with an optional symbol before it; a link opens an address outside the program.
Item {
    id: line
    required property fact fact
    // Whether the label is aligned with those that have a symbol.
    property bool isIndented: fact.symbol !== ""
    signal followed

    implicitHeight: Math.max(label.implicitHeight, value.implicitHeight)

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: line.fact.symbol !== ""
        width: Theme.smallIconSize
        height: width
        name: line.fact.symbol
        color: Theme.secondary
    }
    Label {
        id: label
        x: line.isIndented ? Theme.iconSize + Theme.unit : 0
        width: Math.min(implicitWidth, line.width / 2 - Theme.unit - x)
        height: parent.height
        text: line.fact.label
        font.pointSize: line.fact.hasSmallLabel ? Theme.caption : Theme.body
        color: Theme.secondary
    }
    Row {
        id: value
        anchors.right: parent.right
        spacing: Theme.unit

        LinkLabel {
            visible: line.fact.isLink
            width: Math.min(implicitWidth, line.width - label.x - label.width - 2 * Theme.unit)
            text: line.fact.text
            onClicked: line.followed()
        }
        Label {
            visible: !line.fact.isLink
            width: Math.min(implicitWidth, line.width - label.x - label.width - caption.width - 3 * Theme.unit)
            text: line.fact.text
            font.weight: line.fact.tone === Tone.Secondary ? Font.Normal : Font.Medium
            color: Theme.toneColor(line.fact.tone)
            Accessible.description: line.fact.explanation

            HoverHandler {
                id: pointer
                enabled: line.fact.explanation !== ""
            }
            ToolTipLoader {
                text: line.fact.explanation
                isShown: pointer.hovered
            }
        }
        Label {
            id: caption
            visible: text !== ""
            height: parent.height
            text: line.fact.caption
            font.pointSize: Theme.caption
            color: Theme.secondary
        }
    }
}
