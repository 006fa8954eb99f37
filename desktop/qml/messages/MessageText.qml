import QtQuick
import Larkspan
import Larkspan.Bridge

// Styled words that can be selected. The markup is written by the program, with everything of the service's escaped, and
// holds nothing that is fetched.
TextEdit {
    id: edit
    required property markdownText words
    signal followed(href: string)

    // The colour of links is the desktop's, which need not be legible here; no "<" but the program's own is in the markup.
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
