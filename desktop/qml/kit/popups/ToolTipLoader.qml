import QtQuick
import Larkspan

// A tool tip of what it stands in, made when it is first to be seen.
LateLoader {
    id: loader
    required property string text
    property bool isShown: false

    anchors.fill: parent
    isWanted: isShown
    file: Qt.resolvedUrl("KitToolTip.qml")
    given: ({
        text: Qt.binding(() => loader.text),
        visible: Qt.binding(() => loader.isShown)
    })
}
