import QtQuick
import Larkspan

// The only way to show text: literally, even if it looks like markup.
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
