import QtQuick
import Larkspan.Bridge.Workspace
import Larkspan.Kit

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
