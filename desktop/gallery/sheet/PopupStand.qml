import QtQuick
import Larkspan.Gallery
import Larkspan.Kit

// A window of its own for a piece that opens over a window; the sheet shows its picture in this place.
Stand {
    id: stand
    default property alias content: window.data
    property alias backdrop: window.color
    implicitWidth: 520 * Theme.scale
    implicitHeight: 260 * Theme.scale

    Window {
        id: window
        width: stand.width
        height: stand.height
        visible: true
        color: Theme.window
    }
}
