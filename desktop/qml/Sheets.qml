import QtQuick
import Larkspan
import Larkspan.Bridge.Workspace
import Larkspan.Kit

// The sheets and dialogs over the whole window.
Item {
    id: sheets
    required property DashboardBridge dashboard
    required property AboutKestruneBridge about
    required property UpdateReportBridge updates

    PopupLoader {
        isShown: sheets.dashboard.settings !== null
        onDismissed: sheets.dashboard.closeSettings()
        sourceComponent: SettingsView {
            settings: sheets.dashboard.settings
        }
    }
    PopupLoader {
        isShown: sheets.about.isShowing
        onDismissed: sheets.about.close()
        sourceComponent: AboutKestruneView {
            about: sheets.about
        }
    }
    PopupLoader {
        isShown: sheets.updates.isShowing
        onDismissed: sheets.updates.dismiss()
        sourceComponent: UpdateReportDialog {
            updates: sheets.updates
        }
    }
}
