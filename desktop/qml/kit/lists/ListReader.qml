import QtQuick
import Larkspan
import Larkspan.Bridge

// Has the keyboard where a list is only read.
Item {
    id: reader
    required property string name
    // Whether there is something to scroll.
    required property bool isStop

    activeFocusOnTab: isStop || activeFocus
    Accessible.role: Accessible.Pane
    Accessible.name: name
    Accessible.ignored: !isStop
    Accessible.focusable: true

    FocusRing {
        holder: reader
        anchors.margins: 0
        radius: 0
    }
}
