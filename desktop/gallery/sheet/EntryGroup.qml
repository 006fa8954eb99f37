import QtQuick
import Larkspan.Kit

SheetGroup {
    title: "Entries"
    remark: "Each has a name for screen readers. The placeholder is an example, never the only label."

    StateHead {
        width: parent.width
    }
    StateRow {
        width: parent.width
        // A press gives it the focus, and looks like it.
        hasPress: false
        name: "TextEntry"
        isWide: true
        piece: TextEntry { name: "Title"; placeholderText: "Incident Title" }
        selected: TextEntry { name: "Title"; text: "Slow login"; Component.onCompleted: selectAll() }
    }
    StateRow {
        width: parent.width
        // A press gives it the focus, and looks like it.
        hasPress: false
        name: "SecretField"
        isWide: true
        piece: SecretField { name: "API Key"; text: "nobody sees it" }
    }
    StateRow {
        width: parent.width
        // A press gives it the focus, and looks like it.
        hasPress: false
        name: "TimeField"
        piece: TimeField { name: "Hour"; value: "09"; pattern: "[0-9]*" }
        selected: TimeField { name: "Hour"; value: "09"; pattern: "[0-9]*"; Component.onCompleted: selectAll() }
    }
    StateRow {
        width: parent.width
        // A press gives it the focus, and looks like it.
        hasPress: false
        name: "TextBox"
        isWide: true
        piece: TextBox { name: "Message"; Component.onCompleted: show("We are looking into it.") }
    }
    Row {
        width: parent.width
        spacing: 3 * Theme.unit

        SheetCaption {
            width: parent.width / 7 - 3 * Theme.unit
            text: "TitledField"
        }
        TitledField {
            width: parent.width / 3
            title: "Affected Components"
            symbol: "square.grid.2x2"

            TextEntry {
                width: parent.width
                name: "Affected Components"
                text: "Login"
            }
        }
    }
}
