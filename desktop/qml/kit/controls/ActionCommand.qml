import QtQuick
import Larkspan.Bridge

// A button with the text that `src/` gives it. The model of a row of them is their number, not the list of buttons, so
// that a pressed button keeps the focus when its text changes.
CommandButton {
    required property actionButton button

    text: button.label
    symbol: button.symbol
    tone: button.tone
    isProminent: button.isProminent
    enabled: button.isEnabled
}
