import QtQuick
import Larkspan
import Larkspan.Bridge

// One of the buttons under a record.
CommandButton {
    required property actionButton modelData
    signal pressedById(id: string)

    text: modelData.label
    symbol: modelData.symbol
    tone: modelData.tone
    isProminent: modelData.isProminent
    enabled: modelData.isEnabled
    onClicked: pressedById(modelData.id)
}
