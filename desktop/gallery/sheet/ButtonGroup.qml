import QtQuick
import Larkspan.Bridge
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    id: group
    required property KitSamples samples

    title: "Buttons"
    remark: "One prominent button at most on a screen: the most likely choice. What cannot be undone is red and asks first."

    StateHead {
        width: parent.width
    }
    StateRow {
        width: parent.width
        name: "CommandButton"
        piece: CommandButton { text: "Refresh" }
    }
    StateRow {
        width: parent.width
        name: "prominent"
        piece: CommandButton { text: "Save"; isProminent: true }
    }
    StateRow {
        width: parent.width
        name: "destructive"
        piece: CommandButton { text: "Delete"; isDestructive: true }
    }
    StateRow {
        width: parent.width
        name: "small"
        piece: CommandButton { text: "Metrics"; isSmall: true; symbol: "chart.xyaxis.line" }
    }
    StateRow {
        width: parent.width
        name: "ActionCommand"
        piece: ActionCommand { button: group.samples.actionButton("Pause", "pause.fill", Tone.Orange, false) }
    }
    StateRow {
        width: parent.width
        name: "prominent, of a tone"
        piece: ActionCommand { button: group.samples.actionButton("Resolve", "checkmark", Tone.Green, true) }
    }
    StateRow {
        width: parent.width
        name: "ToolbarButton"
        piece: ToolbarButton { symbol: "gearshape"; help: "Settings" }
    }
    StateRow {
        width: parent.width
        name: "busy"
        hasHover: false
        isFocusable: false
        hasDisabled: false
        piece: ToolbarButton { symbol: "arrow.clockwise"; help: "Refresh"; isBusy: true }
    }
    StateRow {
        width: parent.width
        name: "MenuButton"
        piece: MenuButton { symbol: "line.3.horizontal"; help: "Menu"; file: ""; given: ({}) }
    }
    StateRow {
        width: parent.width
        name: "LinkLabel"
        hasDisabled: false
        piece: LinkLabel { text: "status.example.org" }
    }
}
