import QtQuick
import Larkspan
import Larkspan.Bridge

// What stands where a list would: a symbol or progress, a title, a sentence, and what can be done about it.
Column {
    id: state
    property string symbol
    property int tone: Tone.Secondary
    property string title
    property string text
    property bool showsProgress: false
    default property alias actions: actionRow.data

    spacing: 2 * Theme.unit

    BusyIndicator {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.showsProgress
        width: 2 * Theme.iconSize
        height: width
        name: state.text
    }
    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.symbol !== ""
        width: Theme.largeIconSize
        height: width
        name: state.symbol
        color: Theme.toneColor(state.tone)
    }
    Label {
        width: parent.width
        visible: text !== ""
        text: state.title
        horizontalAlignment: Text.AlignHCenter
        font.pointSize: Theme.title3
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    Label {
        width: parent.width
        visible: text !== ""
        text: state.text
        color: Theme.secondary
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 8
    }
    Row {
        id: actionRow
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Theme.unit
    }
}
