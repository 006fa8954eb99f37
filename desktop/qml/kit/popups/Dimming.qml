import QtQuick
import Larkspan

// The dimmed layer between the window and a sheet.
Rectangle {
    color: Theme.dimming
    Behavior on opacity {
        NumberAnimation { duration: Theme.calm; easing.type: Easing.OutCubic }
    }
}
