import QtQuick
import Larkspan.Kit

// The tool tip of its parent, created when it is first shown.
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
