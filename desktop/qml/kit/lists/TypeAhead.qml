import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Collects the letters that are typed in a list and finds the row that they mean. A pause starts a new search; a blank
// among letters is one of them, and alone it presses the row.
QtObject {
    id: typeAhead
    required property ListModel rows
    required property int currentRow
    signal meant(row: int)
    signal activated

    property string letters
    readonly property Timer pause: Timer {
        interval: Theme.typingPause
        onTriggered: typeAhead.letters = ""
    }

    // Returns whether the key was such a letter.
    function take(event: KeyEvent): bool {
        const isCommand = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)
        if (isCommand || event.text.length === 0 || event.text < " " || event.text === "\u007f") return false
        if (event.text === " " && letters === "") {
            activated()
            return true
        }
        letters += event.text
        pause.restart()
        const row = rows.rowMeantBy(letters, currentRow)
        if (row >= 0) meant(row)
        return true
    }
}
