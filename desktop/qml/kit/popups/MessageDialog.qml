import QtQuick
import Larkspan.Kit

// A short message with its buttons, over the dimmed window.
ModalDialog {
    id: dialog
    property string text
    property bool showsProgress: false
    property alias actionSpacing: actionRow.spacing
    default property alias actions: actionRow.data

    width: parent ? Math.min(Theme.dialogWidth * Theme.scale, parent.width - 2 * Theme.margin) : 0
    padding: Theme.margin
    wholeHeight: column.implicitHeight + topPadding + bottomPadding

    contentItem: FocusScope {
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: dialog.title
        Accessible.description: dialog.text
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
}
