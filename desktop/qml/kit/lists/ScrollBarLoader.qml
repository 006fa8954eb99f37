import QtQuick
import Larkspan.Kit

// The scroll bar of a flickable, created when the content is first larger than the view.
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
