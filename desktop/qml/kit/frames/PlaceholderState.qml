import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Shown in place of content: a symbol or progress, a title, a sentence, and a button to resolve it.
Column {
    id: state
    required property placeholder placeholder
    property bool hasBoldTitle: true
    // The height in which the button should be in view; the sentence is cut for it, but never below three lines, and is
    // told whole in a tool tip.
    property real mostHeight: Infinity
    readonly property real others: (progress.visible ? progress.height : 0) + (symbol.visible ? symbol.height : 0)
        + (title.visible ? title.height : 0) + buttons.height + 3 * spacing
    signal retried
    signal settingsRequested

    spacing: 2 * Theme.unit

    BusyIndicator {
        id: progress
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.placeholder.showsProgress
        width: 2 * Theme.iconSize
        height: width
        name: state.placeholder.text
    }
    Symbol {
        id: symbol
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.placeholder.symbol !== ""
        width: Theme.largeIconSize
        height: width
        name: state.placeholder.symbol
        color: Theme.toneColor(state.placeholder.tone)
    }
    Label {
        id: title
        width: parent.width
        visible: text !== ""
        text: state.placeholder.title
        horizontalAlignment: Text.AlignHCenter
        font.pointSize: Theme.title3
        font.weight: state.hasBoldTitle ? Font.Bold : Font.Normal
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    Label {
        id: sentence
        width: parent.width
        visible: text !== ""
        text: state.placeholder.text
        color: Theme.secondary
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: Math.max(3, Math.min(8, Math.floor((state.mostHeight - state.others) / metrics.lineSpacing)))

        FontMetrics {
            id: metrics
            font: sentence.font
        }
        HoverHandler {
            id: pointer
        }
        ToolTipLoader {
            text: sentence.text
            isShown: pointer.hovered && sentence.truncated
        }
    }
    Row {
        id: buttons
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Theme.unit

        CommandButton {
            visible: state.placeholder.offersSettings
            text: qsTr("Open Settings")
            isProminent: !state.placeholder.offersRetry
            onClicked: state.settingsRequested()
        }
        CommandButton {
            visible: state.placeholder.offersRetry
            text: qsTr("Retry")
            isProminent: true
            onClicked: state.retried()
        }
    }
}
