import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Kit

Sheet {
    id: sheet
    required property AboutKestruneBridge about

    title: qsTr("About Kestrune")
    preferredWidth: Theme.aboutWidth

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Theme.aboutIconSize
        height: Theme.aboutIconSize
        name: "application-icon"
    }
    Column {
        width: parent.width
        spacing: Theme.halfUnit

        Label {
            width: parent.width
            text: sheet.about.title
            font.pointSize: Theme.title2
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            text: sheet.about.versionText
            font.pointSize: Theme.subheadline
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
        }
    }
    Label {
        width: parent.width
        // No word stands alone on the last line.
        text: sheet.about.text.replace(/ (\S+)$/, "\u00a0$1")
        Accessible.name: sheet.about.text
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Rectangle {
        width: parent.width
        height: links.implicitHeight + Theme.unit
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line

        Column {
            id: links
            x: Theme.halfUnit
            y: Theme.halfUnit
            width: parent.width - Theme.unit

            Repeater {
                model: sheet.about.links
                LinkRow {
                    required property int index
                    required property link modelData
                    width: links.width
                    link: modelData
                    onClicked: sheet.about.openLink(index)
                }
            }
        }
    }
    CommandButton {
        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTr("Done")
        isProminent: true
        focus: true
        onClicked: sheet.close()
    }
}
