import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// A labelled value with an optional symbol before it; a link opens an address outside the program.
PairedLine {
    id: line
    required property fact fact
    // Whether the label is aligned with those that have a symbol.
    property bool isIndented: fact.symbol !== ""
    signal followed

    indent: isIndented ? Theme.iconSize + Theme.unit : 0
    label: Label {
        text: line.fact.label
        font.pointSize: line.fact.hasSmallLabel ? Theme.caption : Theme.body
        color: Theme.secondary
        wrapMode: line.isStacked ? Text.Wrap : Text.NoWrap
    }
    value: Item {
        implicitWidth: line.fact.isLink ? link.implicitWidth : words.implicitWidth
        implicitHeight: line.fact.isLink ? link.implicitHeight : words.implicitHeight

        LinkLabel {
            id: link
            visible: line.fact.isLink
            width: parent.width
            text: line.fact.text
            wraps: line.isStacked
            onClicked: line.followed()
        }
        Label {
            id: words
            visible: !line.fact.isLink
            width: parent.width
            text: line.fact.text
            font.weight: Font.Medium
            color: Theme.toneColor(line.fact.tone)
            wrapMode: line.isStacked ? Text.Wrap : Text.NoWrap
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
    }

    Symbol {
        y: Math.round(line.middle - height / 2)
        visible: line.fact.symbol !== ""
        width: Theme.smallIconSize
        height: width
        name: line.fact.symbol
        color: Theme.secondary
    }
}
