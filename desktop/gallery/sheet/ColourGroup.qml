import QtQuick
import Larkspan.Kit

SheetGroup {
    title: "Colour and type"
    remark: "Colour only where it means status. Theme.qml has every colour and every size; sizes with text in them grow with the desktop's font."

    Grid {
        id: colours
        readonly property real cellWidth: width / columns
        width: parent.width
        columns: 8
        rowSpacing: 2 * Theme.unit

        Repeater {
            model: [
                { name: "window", tint: Theme.window }, { name: "card", tint: Theme.card },
                { name: "line", tint: Theme.line }, { name: "text", tint: Theme.text },
                { name: "secondary", tint: Theme.secondary }, { name: "accent", tint: Theme.accent },
                { name: "focus", tint: Theme.focus }, { name: "track", tint: Theme.track },
                { name: "green", tint: Theme.green }, { name: "yellow", tint: Theme.yellow },
                { name: "orange", tint: Theme.orange }, { name: "red", tint: Theme.red },
                { name: "blue", tint: Theme.blue }, { name: "gray", tint: Theme.gray },
                { name: "hover", tint: Theme.hover }, { name: "pressed", tint: Theme.pressed }
            ]
            Column {
                id: swatch
                required property var modelData
                width: colours.cellWidth
                spacing: Theme.halfUnit

                Rectangle {
                    width: parent.width - 2 * Theme.unit
                    height: Theme.controlHeight
                    radius: Theme.controlRadius
                    color: swatch.modelData.tint
                    border.width: Theme.hairline
                    border.color: Theme.line
                }
                SheetCaption {
                    text: swatch.modelData.name
                }
            }
        }
    }
    Row {
        width: parent.width
        spacing: 3 * Theme.unit

        Repeater {
            model: [
                { name: "title", size: Theme.title }, { name: "title2", size: Theme.title2 },
                { name: "title3", size: Theme.title3 }, { name: "body", size: Theme.body },
                { name: "subheadline", size: Theme.subheadline }, { name: "caption", size: Theme.caption },
                { name: "caption2", size: Theme.caption2 }
            ]
            Label {
                required property var modelData
                anchors.bottom: parent.bottom
                text: modelData.name
                font.pointSize: modelData.size
            }
        }
    }
}
