import QtQuick
import Larkspan.Gallery
import Larkspan.Kit

// Every piece of the kit in every state, for whoever builds the next screen.
Window {
    id: sheet
    required property KitSamples samples
    property bool isDark: false
    property bool hasHighContrast: false

    width: content.width + 2 * content.x
    height: content.height + 2 * content.y
    color: Theme.window

    Binding {
        target: Theme
        property: "isDark"
        value: sheet.isDark
    }
    Binding {
        target: Theme
        property: "hasHighContrast"
        value: sheet.hasHighContrast
    }
    Binding {
        target: Theme
        property: "reducesMotion"
        value: true
    }

    Column {
        id: content
        x: 5 * Theme.unit
        y: 5 * Theme.unit
        width: 1120 * Theme.scale
        spacing: 5 * Theme.unit

        Column {
            width: parent.width
            spacing: Theme.halfUnit

            Label {
                text: "The kit"
                font.pointSize: Theme.title
                font.weight: Font.Bold
            }
            Label {
                width: parent.width
                text: "Every piece in every state that it has. The names are those of the files in desktop/qml/kit."
                color: Theme.secondary
                wrapMode: Text.Wrap
            }
        }
        ColourGroup {
            width: parent.width
        }
        ButtonGroup {
            width: parent.width
            samples: sheet.samples
        }
        EntryGroup {
            width: parent.width
        }
        ChoiceGroup {
            width: parent.width
            samples: sheet.samples
        }
        DateGroup {
            width: parent.width
            samples: sheet.samples
        }
        StatusGroup {
            width: parent.width
            samples: sheet.samples
        }
        RowGroup {
            width: parent.width
            samples: sheet.samples
        }
        PlaceholderGroup {
            width: parent.width
            samples: sheet.samples
        }
        PopupGroup {
            width: parent.width
            samples: sheet.samples
        }
        ScreenGroup {
            width: parent.width
        }
    }
}
