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
            id: dashboardView
            anchors.fill: parent
            focus: true
            dashboard: window.dashboard
            menu: window.menu
        }
        PushedPage {
            id: statusPage
            isShown: window.dashboard.openedPage !== null
            beneath: dashboardView
            onDismissed: window.dashboard.closePage()
            sourceComponent: StatusPageDetailView {
                page: window.dashboard.openedPage
                onWentBack: statusPage.goBack()
                onAccountWanted: window.dashboard.refresh()
            }
        }
        PushedPage {
            id: incidentPage
            readonly property IncidentListBridge incidents: window.dashboard.openedPage ? window.dashboard.openedPage.incidents : null
            readonly property IncidentDetailBridge incident: incidents ? incidents.detail : null

            isShown: incident !== null
            beneath: statusPage
            isGuarded: incident !== null && incident.isEditing
            onBackWanted: incident.requestClose()
            onDismissed: incidents.closeDetail()
            sourceComponent: IncidentDetailView {
                incident: incidentPage.incident
                onWentBack: incidentPage.incident.isEditing ? incidentPage.incident.close() : incidentPage.goBack()
            }
        }
        PushedPage {
            id: monitorPage
            readonly property MonitorListBridge monitors: window.dashboard.openedPage ? window.dashboard.openedPage.monitors : null
            readonly property MonitorDetailBridge monitor: monitors ? monitors.detail : null

            isShown: monitor !== null
            beneath: statusPage
            onDismissed: monitors.closeDetail()
            sourceComponent: MonitorDetailView {
                monitor: monitorPage.monitor
                onWentBack: monitorPage.goBack()
            }
        }
        PushedPage {
            id: componentPage
            readonly property ComponentListBridge components: window.dashboard.openedPage ? window.dashboard.openedPage.components : null
            readonly property ComponentDetailBridge detail: components ? components.detail : null

            isShown: detail !== null
            beneath: statusPage
            isGuarded: detail !== null && (detail.isEditing || detail.isBusy)
            onBackWanted: detail.requestClose()
            onDismissed: components.closeDetail()
            sourceComponent: ComponentDetailView {
                detail: componentPage.detail
                onWentBack: componentPage.detail.isEditing ? componentPage.detail.close() : componentPage.goBack()
            }
        }
        PushedPage {
            id: maintenancePage
            readonly property MaintenanceListBridge maintenances: window.dashboard.openedPage ? window.dashboard.openedPage.maintenances : null
            readonly property MaintenanceDetailBridge maintenance: maintenances ? maintenances.detail : null

            isShown: maintenance !== null
            beneath: statusPage
            isGuarded: maintenance !== null && maintenance.isEditing
            onBackWanted: maintenance.requestClose()
            onDismissed: maintenances.closeDetail()
            sourceComponent: MaintenanceDetailView {
                maintenance: maintenancePage.maintenance
                onWentBack: maintenancePage.maintenance.isEditing ? maintenancePage.maintenance.close() : maintenancePage.goBack()
            }
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
