import QtQuick
import Larkspan.Kit

// The frame of an entry, with the text that is shown while the entry is empty.
Rectangle {
    id: frame
    required property bool isFocused
    property bool isHovered: false
    property string placeholder

    radius: Theme.controlRadius
    color: Theme.field
    // In high contrast the edge cannot become darker under the pointer, but wider.
    border.width: isFocused || isHovered && Theme.hasHighContrast ? Theme.focusWidth : Theme.hairline
    border.color: !enabled ? Theme.disabledLine : isFocused ? Theme.focus
        : isHovered ? Theme.controlLineHovered : Theme.controlLine

    Label {
        anchors.fill: parent
        anchors.leftMargin: Theme.unit + Theme.halfUnit
        anchors.rightMargin: anchors.leftMargin
        visible: text !== ""
        text: frame.placeholder
        color: frame.enabled ? Theme.secondary : Theme.disabledText
    }
}
