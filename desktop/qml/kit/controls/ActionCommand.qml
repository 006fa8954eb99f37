import QtQuick
import Larkspan
import Larkspan.Bridge

// A button as `src/` words it. A row of them has a model of so many, not of the buttons: one that was pressed then keeps
// the keyboard when it is worded anew.
CommandButton {
    required property actionButton button

    text: button.label
    symbol: button.symbol
    tone: button.tone
    isProminent: button.isProminent
    enabled: button.isEnabled
}
