import QtQuick
import Larkspan.Kit

// The dimmed layer between the window and a sheet.
Rectangle {
    property bool isSecond: false

    color: isSecond ? Theme.secondDimming : Theme.dimming
    Behavior on opacity {
        NumberAnimation { duration: Theme.calm; easing.type: Easing.OutCubic }
    }
}
