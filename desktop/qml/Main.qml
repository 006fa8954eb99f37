import QtQuick
import Larkspan
import Larkspan.Bridge

Window {
    id: window
    required property DashboardBridge dashboard
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

    DashboardView {
        anchors.fill: parent
        focus: true
        dashboard: window.dashboard
    }

    Shortcut {
        sequences: ["Ctrl+Q"]
        onActivated: window.quitRequested()
    }
}
