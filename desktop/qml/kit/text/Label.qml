import QtQuick
import Larkspan

// The one way to show text: as it stands, whatever it looks like.
Text {
    color: Theme.text
    font.pointSize: Theme.body
    textFormat: Text.PlainText
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
    renderType: Text.NativeRendering
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
