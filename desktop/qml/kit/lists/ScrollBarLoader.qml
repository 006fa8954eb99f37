import QtQuick
import Larkspan

// The scroll bar at the end of what scrolls, made when there is first more than is seen.
LateLoader {
    id: loader
    required property Flickable flickable

    parent: flickable
    x: flickable.width - width
    height: flickable.height
    isWanted: flickable.height > 0 && flickable.visibleArea.heightRatio < 1
    file: Qt.resolvedUrl("../controls/SlimScrollBar.qml")
    given: ({ flickable: loader.flickable })
}
