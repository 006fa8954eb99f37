import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

// The scroll bar of what a `ScrollBarLoader` stands over. Its handle is thin until the pointer comes near.
T.ScrollBar {
    id: bar
    required property Flickable flickable

    readonly property bool isWide: hovered || pressed
    property real handleWidth: isWide ? Theme.scrollHandleWidthHovered : Theme.scrollHandleWidth
    Behavior on handleWidth {
        NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic }
    }

    implicitWidth: Theme.scrollBarWidth
    padding: 2
    leftPadding: width - padding - handleWidth
    hoverEnabled: true
    visible: size < 1
    minimumSize: Math.min(1, Theme.leastTarget / Math.max(1, availableHeight))
    Accessible.ignored: true
    Component.onCompleted: flickable.T.ScrollBar.vertical = bar

    contentItem: Rectangle {
        radius: width / 2
        color: bar.pressed ? Theme.scrollHandlePressed : bar.hovered ? Theme.scrollHandleHovered : Theme.scrollHandle
        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
    }
}
