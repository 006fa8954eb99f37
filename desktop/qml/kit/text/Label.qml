import QtQuick
import Larkspan.Kit

// The only way to show text: literally, even if it looks like markup. A text of one line stands at the left in any
// script, since it follows a mark or heads a column; paragraphs are aligned as their script is.
Text {
    color: Theme.text
    font.pointSize: Theme.body
    textFormat: Text.PlainText
    elide: Text.ElideRight
    horizontalAlignment: wrapMode === Text.NoWrap ? Text.AlignLeft : undefined
    verticalAlignment: Text.AlignVCenter
    renderType: Text.NativeRendering
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
