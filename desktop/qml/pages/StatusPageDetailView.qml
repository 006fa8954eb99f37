import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Components
import Larkspan.Incidents
import Larkspan.Kit
import Larkspan.Maintenances
import Larkspan.Monitors

// One status page: its tabs, and the screen of the selected one.
ScreenFrame {
    id: view
    required property StatusPageDetailBridge page

    title: page.title
    canGoBack: true
    function enter(tab: int) {
        view.page.select(tab)
        takeFocus()
    }
    // The overview is for reading, the lists of the other tabs have actions.
    function takeFocus() {
        if (view.page.isOverview) picker.forceActiveFocus(Qt.ShortcutFocusReason)
        else screen.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    trailing: [
        ToolbarButton {
            visible: view.page.incidents !== null
            symbol: "plus"
            help: qsTr("New Incident")
            onClicked: view.page.incidents.openForm()
        },
        ToolbarButton {
            visible: view.page.maintenances !== null
            symbol: "plus"
            help: qsTr("New Maintenance")
            onClicked: view.page.maintenances.openForm()
        }
    ]

    TabPicker {
        id: picker
        y: Theme.tabsMargin
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(Theme.pickerWidth * Theme.scale, parent.width - 2 * Theme.margin)
        name: view.page.pickerLabel
        segments: view.page.tabs
        selected: view.page.selectedTab
        focus: true
        onChosen: segment => InputHand.isKeyboard ? view.page.select(segment) : view.enter(segment)
    }

    Loader {
        id: screen
        anchors.fill: parent
        anchors.topMargin: picker.y + picker.height + Theme.tabsPadding
        sourceComponent: view.page.incidents ? incidents
            : view.page.monitors ? monitors
            : view.page.components ? components
            : view.page.maintenances ? maintenances
            : view.page.isOverview ? overview : null
        onLoaded: item.focus = true
    }
    Component {
        id: incidents
        StatusPageIncidentsView {
            incidents: view.page.incidents
        }
    }
    Component {
        id: monitors
        StatusPageMonitorsView {
            monitors: view.page.monitors
        }
    }
    Component {
        id: components
        StatusPageComponentsView {
            components: view.page.components
        }
    }
    Component {
        id: maintenances
        StatusPageMaintenancesView {
            maintenances: view.page.maintenances
        }
    }
    Component {
        id: overview
        StatusPageOverviewView {
            page: view.page
        }
    }

    PopupLoader {
        isShown: view.page.incidents !== null && view.page.incidents.form !== null
        onDismissed: view.page.incidents.form.close()
        sourceComponent: CreateIncidentView {
            incident: view.page.incidents.form
        }
    }
    PopupLoader {
        isShown: view.page.maintenances !== null && view.page.maintenances.form !== null
        onDismissed: view.page.maintenances.form.close()
        sourceComponent: CreateMaintenanceView {
            maintenance: view.page.maintenances.form
        }
    }

    Shortcut {
        sequences: ["F5", "Ctrl+R"]
        autoRepeat: false
        enabled: view.visible
        onActivated: view.page.refresh()
    }
    Shortcut {
        sequences: ["Ctrl+PgDown"]
        enabled: view.enabled
        onActivated: {
            view.page.selectNext()
            view.takeFocus()
        }
    }
    Shortcut {
        sequences: ["Ctrl+PgUp"]
        enabled: view.enabled
        onActivated: {
            view.page.selectPrevious()
            view.takeFocus()
        }
    }
    Instantiator {
        model: view.page.tabs.length
        delegate: Shortcut {
            required property int index
            sequence: "Ctrl+" + (index + 1)
            enabled: view.enabled
            onActivated: view.enter(index)
        }
    }
}
