import QtQuick
import QtQuick.Templates as T
import Larkspan.Bridge
import Larkspan.Kit

// An entry of several lines; it grows with its text and then scrolls. Tab moves to the next control.
FocusScope {
    id: box
    required property string name
    readonly property alias text: area.text
    // Whether the text stands close to a faint edge, and not as in a field.
    property bool isTight: false
    signal edited(text: string)

    // Sets the text of the box; `typed` follows it.
    function show(text: string) {
        area.lengthToCome = text.length
        area.text = text
        area.lengthToCome = 0
    }

    implicitHeight: Math.min(Theme.textBoxMostHeight * Theme.scale,
        Math.max(Theme.textBoxHeight * Theme.scale, area.implicitHeight + 2 * Theme.focusWidth))

    Rectangle {
        anchors.fill: parent
        radius: Theme.boxRadius
        color: Theme.field
        border.width: pointer.hovered && Theme.hasHighContrast ? Theme.focusWidth : Theme.hairline
        border.color: !box.enabled ? Theme.disabledLine : pointer.hovered ? Theme.controlLineHovered
            : box.isTight ? Qt.alpha(Theme.secondary, Theme.outlineOpacity) : Theme.controlLine
    }
    HoverHandler {
        id: pointer
    }
    Rectangle {
        anchors.fill: parent
        visible: area.activeFocus
        radius: Theme.boxRadius
        color: "transparent"
        border.width: Theme.focusWidth
        border.color: Theme.focus
    }
    Flickable {
        id: view
        anchors.fill: parent
        anchors.margins: Theme.focusWidth
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.TextArea.flickable: T.TextArea {
            id: area
            focus: true
            property bool scrolls: false
            padding: (box.isTight ? Theme.halfUnit : Theme.unit) - Theme.focusWidth
            leftPadding: (box.isTight ? Theme.halfUnit : Theme.unit + Theme.halfUnit) - Theme.focusWidth
            rightPadding: Math.max(leftPadding, scrolls ? Theme.wideGap : 0)
            implicitHeight: contentHeight + topPadding + bottomPadding
            // Looking for a place to break takes quadratic time for a text without one.
            property int lengthToCome: 0
            wrapMode: Math.max(length, lengthToCome) > 20000 ? TextEdit.WrapAnywhere : TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            color: enabled ? Theme.text : Theme.disabledText
            selectionColor: Theme.accent
            selectedTextColor: Theme.accentText
            font.pointSize: Theme.body
            renderType: Text.NativeRendering
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onReturnPressed: event => endLine(event)
            Keys.onEnterPressed: event => endLine(event)
            // With Shift, Qt itself would insert a line separator, which ends no line for readers of the message.
            function endLine(event: KeyEvent) {
                event.accepted = (event.modifiers & Qt.ShiftModifier) !== 0
                if (!event.accepted) return
                remove(selectionStart, selectionEnd)
                insert(cursorPosition, "\n")
            }
            Accessible.role: Accessible.EditableText
            Accessible.name: box.name
            onTextChanged: if (activeFocus) box.edited(TypedText.of(textDocument))
        }
        // Later, since the padding changes the heights, and the box grows before its text scrolls.
        Binding {
            target: area
            property: "scrolls"
            value: view.contentHeight > view.height
            delayed: true
        }
        ScrollBarLoader {
            flickable: view
        }
    }
}
