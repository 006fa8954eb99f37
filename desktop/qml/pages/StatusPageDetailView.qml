import QtQuick
import Larkspan
import Larkspan.Bridge

// One status page: the choice of its tabs, and the screen of the chosen one.
ScreenFrame {
    id: view
    required property StatusPageDetailBridge page

    title: page.title
    canGoBack: true

    SegmentedPicker {
        id: picker
        y: Theme.unit + Theme.halfUnit
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(Theme.pickerWidth * Theme.scale, parent.width - 2 * Theme.margin)
        name: view.page.pickerLabel
        segments: view.page.tabs
        selected: view.page.selectedTab
        onChosen: segment => view.page.select(segment)
    }

    Loader {
        id: screen
        anchors.fill: parent
        anchors.topMargin: picker.y + picker.height
        focus: true
        sourceComponent: view.page.selectedTab === 0 ? overview : null
        onLoaded: item.focus = true
    }
    Component {
        id: overview
        StatusPageOverviewView {
            page: view.page
        }
    }

    Shortcut {
        sequences: ["Ctrl+PgDown"]
        onActivated: view.page.selectNext()
    }
    Shortcut {
        sequences: ["Ctrl+PgUp"]
        onActivated: view.page.selectPrevious()
    }
    Instantiator {
        model: view.page.tabs.length
        delegate: Shortcut {
            required property int index
            sequence: "Ctrl+" + (index + 1)
            onActivated: view.page.select(index)
        }
    }
}
