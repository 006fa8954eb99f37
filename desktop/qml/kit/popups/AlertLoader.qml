import QtQuick
import Larkspan.Bridge

// Shows one failure after the other, each until it is dismissed.
PopupLoader {
    id: loader
    required property alert alert

    isShown: alert.text !== ""
    occasion: alert.number
    source: Qt.resolvedUrl("ErrorAlert.qml")

    Binding {
        target: loader.item
        property: "text"
        value: loader.alert.text
    }
}
