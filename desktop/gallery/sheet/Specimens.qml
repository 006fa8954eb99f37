import QtQuick
import Larkspan.Kit

// Specimens of a piece without states, side by side.
Item {
    id: line
    required property string name
    property alias spacing: flow.spacing
    default property alias content: flow.data

    height: Math.max(caption.height, flow.height)

    SheetCaption {
        id: caption
        width: line.width / 7 - Theme.unit
        text: line.name
    }
    Flow {
        id: flow
        x: line.width / 7
        width: line.width - x
        spacing: 2 * Theme.unit
    }
}
