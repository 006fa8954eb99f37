import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Bridge.Menu
import Larkspan.Bridge.Workspace
import Larkspan.Kit

Window {
    id: window
    required property DashboardBridge dashboard
    required property AboutKestruneBridge about
    required property UpdateReportBridge updates
    required property StatusMenuBridge menu
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
            id: dashboardView
            anchors.fill: parent
            focus: true
            dashboard: window.dashboard
            menu: window.menu
        }
        LateLoader {
            anchors.fill: parent
            isWanted: window.dashboard.openedPage !== null
            file: Qt.resolvedUrl("pages/OpenedPages.qml")
            given: ({ dashboard: window.dashboard, beneath: dashboardView })
        }
    }

    LateLoader {
        isWanted: window.dashboard.settings !== null || window.about.isShowing || window.updates.isShowing
        file: Qt.resolvedUrl("Sheets.qml")
        given: ({ dashboard: window.dashboard, about: window.about, updates: window.updates })
    }

    HeldKeys {
        window: window
    }
    Shortcut {
        // Also while a sheet or a dialog is shown.
        context: Qt.ApplicationShortcut
        sequences: ["Ctrl+Q"]
        autoRepeat: false
        onActivated: window.quitRequested()
    }
}
