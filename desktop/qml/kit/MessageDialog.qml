import QtQuick
import QtQuick.Templates as T
import Larkspan

// A short message with its buttons, over the dimmed window.
T.Dialog {
    id: dialog
    property string text
    property bool showsProgress: false
    default property alias actions: actionRow.data

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: parent ? Math.min(Theme.dialogWidth * Theme.scale, parent.width - 2 * Theme.margin) : 0
    padding: Theme.margin
    implicitHeight: column.implicitHeight + topPadding + bottomPadding
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    T.Overlay.modal: Dimming {}

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line
    }

    contentItem: FocusScope {
        focus: true
        implicitHeight: column.implicitHeight

        Column {
            id: column
            width: parent.width
            spacing: Theme.unit + Theme.halfUnit

            Row {
                width: parent.width
                spacing: Theme.unit + Theme.halfUnit

                BusyIndicator {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: dialog.showsProgress
                    name: dialog.title
                }
                Label {
                    width: parent.width - x
                    text: dialog.title
                    font.pointSize: Theme.title3
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }
            }
            Label {
                width: parent.width
                visible: text !== ""
                text: dialog.text
                color: Theme.secondary
                wrapMode: Text.Wrap
            }
            Item {
                width: parent.width
                height: actionRow.height + Theme.unit

                Row {
                    id: actionRow
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    spacing: Theme.unit
                }
            }
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.calm; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
}
