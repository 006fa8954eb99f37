import QtQuick
import Larkspan
import Larkspan.Bridge

// Tells of one failure after another, each until it has been read.
PopupLoader {
    id: loader
    required property alert alert

    isShown: alert.text !== ""
    occasion: alert.number
    sourceComponent: ErrorAlert {
        text: loader.alert.text
    }
}
