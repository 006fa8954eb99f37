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
        // There is nothing to agree to before there is a finding.
        isProminent: !dialog.updates.report.showsProgress
        focus: true
        onClicked: dialog.close()
    }
}
