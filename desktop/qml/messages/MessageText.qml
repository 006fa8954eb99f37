import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Messages
import Larkspan.Kit

// Styled text that can be selected. The markup is written by the program, with all text of the service escaped, and
// refers to nothing that would be fetched.
TextEdit {
    id: edit
    required property markdownText words
    signal followed(href: string)

    // Links would have the desktop's colour, which may not be legible here; every "<" in the markup is the program's
    // own.
    text: words.styled.replace(/<a /g, "<a style=\"color:" + Theme.accentOnCard + "\" ")
    textFormat: TextEdit.RichText
    readOnly: true
    selectByMouse: true
    activeFocusOnTab: false
    wrapMode: TextEdit.Wrap
    color: Theme.text
    font.pointSize: Theme.body
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    renderType: Text.NativeRendering
    Accessible.role: Accessible.StaticText
    Accessible.name: words.plain
    Accessible.ignored: words.plain === ""
    onLinkActivated: link => edit.followed(link)

    HoverHandler {
        cursorShape: edit.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.IBeamCursor
    }
}
