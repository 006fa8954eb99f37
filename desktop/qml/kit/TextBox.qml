import QtQuick
import QtQuick.Templates as T
import Larkspan

// Several lines of text that the user types; it grows with them and scrolls beyond that. Tab goes on to the next control.
FocusScope {
    id: box
    required property string name
    property alias text: area.text
    signal edited(text: string)

    implicitHeight: Math.min(Theme.textBoxMostHeight * Theme.scale, Math.max(Theme.textBoxHeight * Theme.scale, area.implicitHeight))

    EntryBackground {
        anchors.fill: parent
        isFocused: area.activeFocus
    }
    Flickable {
        id: scroller
        anchors.fill: parent
        anchors.margins: Theme.focusWidth
        contentWidth: width
        contentHeight: area.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.TextArea.flickable: T.TextArea {
            id: area
            focus: true
            padding: Theme.unit
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            color: Theme.text
            selectionColor: Theme.accent
            selectedTextColor: Theme.accentText
            font.pointSize: Theme.body
            renderType: Text.NativeRendering
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Accessible.role: Accessible.EditableText
            Accessible.name: box.name
            onTextChanged: if (activeFocus) box.edited(text)
        }
        T.ScrollBar.vertical: SlimScrollBar {}
    }
}
