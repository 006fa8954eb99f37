import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// Shown in place of content: a symbol or progress, a title, a sentence, and a button to resolve it.
Column {
    id: state
    required property placeholder placeholder
    property bool hasBoldTitle: true
    signal retried
    signal settingsRequested

    spacing: 2 * Theme.unit

    BusyIndicator {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.placeholder.showsProgress
        width: 2 * Theme.iconSize
        height: width
        name: state.placeholder.text
    }
    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.placeholder.symbol !== ""
        width: Theme.largeIconSize
        height: width
        name: state.placeholder.symbol
        color: Theme.toneColor(state.placeholder.tone)
    }
    Label {
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
        width: parent.width
        visible: text !== ""
        text: state.placeholder.text
        color: Theme.secondary
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 8
    }
    Row {
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
