import QtQuick
import Larkspan.Bridge.Metrics
import Larkspan.Kit

// A day of latency. A press, a drag or the keyboard selects a sample, which a callout above the graph describes.
Item {
    id: view
    required property latencyCurve curve
    required property selectedLatency selection
    signal selected(position: real)

    readonly property bool hasSelection: selection.index >= 0
    // What is to be kept free above the graph for the callout, also while there is none: the graph must not move under
    // the pointer that selects.
    readonly property real headroom: callout.mostHeight + Theme.halfUnit
    // The value of the slider for screen readers.
    readonly property real value: selection.milliseconds
    readonly property real minimumValue: curve.lowestValue
    readonly property real maximumValue: curve.highestValue

    implicitHeight: Theme.graphHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Latency graph")
    Accessible.description: qsTr("Select a point to show its latency value")
    Accessible.focusable: true
    Accessible.onIncreaseAction: plot.move(Qt.Key_Right)
    Accessible.onDecreaseAction: plot.move(Qt.Key_Left)
    Keys.onPressed: event => {
        // With a modifier a key is the window's: Alt+Left goes back.
        event.accepted = !(event.modifiers & ~Qt.KeypadModifier) && plot.move(event.key)
    }

    Rectangle {
        id: ground
        anchors.fill: parent
        radius: Theme.controlRadius
        color: Qt.alpha(Theme.blue, Theme.graphOpacity)
    }
    LatencyPlot {
        id: plot
        anchors.fill: parent
        curve: view.curve
        selectedIndex: view.selection.index
        lineColor: Theme.blue
        areaColor: Qt.alpha(Theme.blue, Theme.areaOpacity)
        lineWidth: Theme.curveWidth
        inset: Theme.halfUnit
        cornerRadius: ground.radius
        onSelected: position => view.selected(position)
    }
    Rectangle {
        visible: view.hasSelection
        x: Math.round(plot.selectedX - width / 2)
        width: Theme.hairline
        height: parent.height
        color: Qt.alpha(Theme.secondary, Theme.ruleOpacity)
    }
    FocusRing { holder: view }

    MouseArea {
        anchors.fill: parent
        // The list below must not take over a drag.
        preventStealing: true
        onPressed: mouse => {
            view.forceActiveFocus(Qt.MouseFocusReason)
            plot.point(mouse.x)
        }
        onPositionChanged: mouse => plot.point(mouse.x)
    }

    LatencyCallout {
        id: callout
        visible: view.hasSelection
        x: Math.round(plot.calloutLeft(plot.selectedX, width))
        y: -height - Theme.halfUnit
        selection: view.selection
    }
}
