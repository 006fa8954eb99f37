import QtQuick
import Larkspan
import Larkspan.Bridge

// The sheets and dialogs over the whole window.
Item {
    id: sheets
    required property DashboardBridge dashboard
    required property AboutBridge about
    required property UpdateBridge updates

    PopupLoader {
        isShown: sheets.dashboard.settings !== null
        onDismissed: sheets.dashboard.closeSettings()
        sourceComponent: SettingsSheet {
            settings: sheets.dashboard.settings
        }
    }
    PopupLoader {
        isShown: sheets.about.isShowing
        onDismissed: sheets.about.close()
        sourceComponent: AboutSheet {
            about: sheets.about
        }
    }
    PopupLoader {
        isShown: sheets.updates.isShowing
        onDismissed: sheets.updates.dismiss()
        sourceComponent: UpdateDialog {
            updates: sheets.updates
        }
    }
}
