import QtQuick
import Larkspan
import Larkspan.Bridge

// A status page over the dashboard, and over it what is opened in one of its tabs.
FocusScope {
    id: pages
    required property DashboardBridge dashboard
    // What the first of them lies over.
    required property Item beneath
    // A page that is wanted from the beginning still comes up like any other.
    property bool isReady: false
    Component.onCompleted: isReady = true

    PushedPage {
        id: statusPage
        isShown: pages.isReady && pages.dashboard.openedPage !== null
        beneath: pages.beneath
        onDismissed: pages.dashboard.closePage()
        sourceComponent: StatusPageDetailView {
            page: pages.dashboard.openedPage
            onWentBack: statusPage.goBack()
        }
    }
    PushedPage {
        id: incidentPage
        readonly property IncidentListBridge incidents: pages.dashboard.openedPage ? pages.dashboard.openedPage.incidents : null
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
        readonly property MonitorListBridge monitors: pages.dashboard.openedPage ? pages.dashboard.openedPage.monitors : null
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
        readonly property ComponentListBridge components: pages.dashboard.openedPage ? pages.dashboard.openedPage.components : null
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
        readonly property MaintenanceListBridge maintenances: pages.dashboard.openedPage ? pages.dashboard.openedPage.maintenances : null
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
