import QtQuick
import Larkspan.Gallery
import Larkspan.Kit

// A row of a table of states: one piece in each of its states.
Item {
    id: row
    required property string name
    required property Component piece
    // The piece when it is selected, if it can be.
    property Component selected: null
    property bool hasHover: true
    property bool hasPress: hasHover
    property bool isFocusable: true
    property bool hasDisabled: true
    // Whether the piece is as wide as its column.
    property bool isWide: false
    // The size of a piece that has none of its own.
    property real pieceWidth: 0
    property real pieceHeight: 0
    readonly property real cellWidth: width / 7

    height: Math.max(caption.height, cells.height, Theme.controlHeight)

    SheetCaption {
        id: caption
        anchors.verticalCenter: parent.verticalCenter
        width: row.cellWidth - Theme.unit
        text: row.name
    }
    Row {
        id: cells
        x: row.cellWidth
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            model: ["", row.hasHover ? "hovered" : "none", row.hasPress ? "pressed" : "none",
                row.isFocusable ? "focused" : "none", row.selected ? "selected" : "none",
                row.hasDisabled ? "disabled" : "none"]

            Pose {
                id: cell
                required property string modelData

                kind: modelData
                target: specimen.item as Item
                width: row.cellWidth
                height: Math.max(specimen.height, blank.height)

                Loader {
                    id: specimen
                    anchors.verticalCenter: parent.verticalCenter
                    width: row.isWide ? parent.width - 2 * Theme.unit : row.pieceWidth > 0 ? row.pieceWidth : implicitWidth
                    height: row.pieceHeight > 0 ? row.pieceHeight : implicitHeight
                    active: cell.modelData !== "none"
                    sourceComponent: cell.modelData === "selected" ? row.selected : row.piece
                    enabled: cell.modelData !== "disabled"
                }
                SheetCaption {
                    id: blank
                    anchors.verticalCenter: parent.verticalCenter
                    visible: cell.modelData === "none"
                    text: "–"
                }
            }
        }
    }
}
