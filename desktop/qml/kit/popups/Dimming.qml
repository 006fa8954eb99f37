import QtQuick
import Larkspan

// What lies over the window under a sheet.
Rectangle {
    color: Theme.dimming
    Behavior on opacity {
        NumberAnimation { duration: Theme.calm; easing.type: Easing.OutCubic }
    }
}
