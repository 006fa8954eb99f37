import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The list of a tab, with what stands in its place and the alert of what has failed in it.
ContentArea {
    required property ListBridge list

    showsContent: list.showsList
    placeholder: list.placeholder
    alert: list.alert
    onRetried: list.refresh()
    onAlertDismissed: list.dismissAlert()
}
