import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Has the focus in a list that is only read.
Item {
    id: reader
    required property string name
    // Whether it can be scrolled.
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
