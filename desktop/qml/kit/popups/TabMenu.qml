import QtQuick
import Larkspan.Kit

// The words of the tabs in a window that is too narrow for them side by side.
WordMenu {
    required property TabPicker picker

    y: parent ? parent.height + Theme.halfUnit : 0
    width: parent ? parent.width : 0
    words: picker.segments
    selected: picker.selected
    onChosen: place => { picker.wanted = place }
}
