import QtQuick
import Larkspan.Kit

// The actions for which an `ActionDock` has no room, at the end of its content.
FocusScope {
    id: end
    required property ActionDock owner
    property alias sourceComponent: loader.sourceComponent
    signal reached

    visible: loader.active
    onActiveFocusChanged: if (activeFocus) end.reached()
    // A loader without an item keeps the height of its last one.
    implicitHeight: loader.active ? loader.y + loader.height : 0

    Loader {
        id: loader
        y: Theme.margin
        width: parent.width
        active: end.owner.isDivided
    }
}
