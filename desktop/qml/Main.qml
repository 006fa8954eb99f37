import QtQuick
import Larkspan
import Larkspan.Bridge

Window {
    id: window
    required property DashboardBridge dashboard
    required property AboutBridge about
    required property UpdateBridge updates
    required property MenuBridge menu
    required property AppearanceBridge appearance
    signal quitRequested

    width: 760
    height: 600
    minimumWidth: 480
    minimumHeight: 440
    title: dashboard.windowTitle
    color: Theme.window

    Binding {
        target: Theme
        property: "isDark"
        value: window.appearance.isDark
    }
    Binding {
        target: Theme
        property: "hasHighContrast"
        value: window.appearance.hasHighContrast
    }
    Binding {
        target: Theme
        property: "reducesMotion"
        value: window.appearance.reducesMotion
    }

    PageStack {
        anchors.fill: parent

        DashboardView {
            anchors.fill: parent
            focus: true
            dashboard: window.dashboard
            menu: window.menu
        }
    }

    PopupLoader {
        isShown: window.dashboard.settings !== null
        onDismissed: window.dashboard.closeSettings()
        sourceComponent: SettingsSheet {
            settings: window.dashboard.settings
        }
    }
    PopupLoader {
        isShown: window.about.isShowing
        onDismissed: window.about.close()
        sourceComponent: AboutSheet {
            about: window.about
        }
    }
    PopupLoader {
        isShown: window.updates.isShowing
        onDismissed: window.updates.dismiss()
        sourceComponent: UpdateDialog {
            updates: window.updates
        }
    }

    Shortcut {
        sequences: ["Ctrl+Q"]
        onActivated: window.quitRequested()
    }
}
