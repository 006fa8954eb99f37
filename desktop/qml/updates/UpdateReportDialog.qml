import QtQuick
import Larkspan
import Larkspan.Bridge.Workspace

MessageDialog {
    id: dialog
    required property UpdateReportBridge updates

    title: updates.report.title
    text: updates.report.text
    showsProgress: updates.report.showsProgress

    CommandButton {
        text: dialog.updates.report.closeLabel
        isProminent: true
        focus: true
        onClicked: dialog.close()
    }
}
