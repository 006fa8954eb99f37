import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Components
import Larkspan.Bridge.Incidents
import Larkspan.Bridge.Maintenances
import Larkspan.Bridge.Monitors
import Larkspan.Bridge.Workspace
import Larkspan.Components
import Larkspan.Incidents
import Larkspan.Kit
import Larkspan.Maintenances
import Larkspan.Monitors

// A status page over the dashboard, and over it the record that is opened in one of its tabs.
FocusScope {
    id: pages
    required property DashboardBridge dashboard
    // The screen beneath the first of them.
    required property Item beneath
    // A page that is to be shown from the start still opens like any other.
    property bool isReady: false
    Component.onCompleted: isReady = true

    // The record decides what going back leaves: its editor, with a question or without, or the page.
    component RecordPage: PushedPage {
        required property EditableDetailBridge record

        isShown: record !== null
        isGuarded: true
        onBackWanted: record.requestClose()
    }

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
    RecordPage {
        id: incidentPage
        readonly property StatusPageIncidentsBridge incidents: pages.dashboard.openedPage ? pages.dashboard.openedPage.incidents : null
        readonly property IncidentDetailBridge incident: incidents ? incidents.detail : null

        record: incident
        beneath: statusPage
        sourceComponent: IncidentDetailView {
            incident: incidentPage.incident
        }
    }
    PushedPage {
        id: monitorPage
        readonly property StatusPageMonitorsBridge monitors: pages.dashboard.openedPage ? pages.dashboard.openedPage.monitors : null
        readonly property MonitorDetailBridge monitor: monitors ? monitors.detail : null

        isShown: monitor !== null
        beneath: statusPage
        onDismissed: monitors.closeDetail()
        sourceComponent: MonitorDetailView {
            monitor: monitorPage.monitor
            onWentBack: monitorPage.goBack()
        }
    }
    RecordPage {
        id: componentPage
        readonly property StatusPageComponentsBridge components: pages.dashboard.openedPage ? pages.dashboard.openedPage.components : null
        readonly property ComponentDetailBridge detail: components ? components.detail : null

        record: detail
        beneath: statusPage
        sourceComponent: ComponentDetailView {
            detail: componentPage.detail
        }
    }
    RecordPage {
        id: maintenancePage
        readonly property StatusPageMaintenancesBridge maintenances: pages.dashboard.openedPage ? pages.dashboard.openedPage.maintenances : null
        readonly property MaintenanceDetailBridge maintenance: maintenances ? maintenances.detail : null

        record: maintenance
        beneath: statusPage
        sourceComponent: MaintenanceDetailView {
            maintenance: maintenancePage.maintenance
        }
    }
}
