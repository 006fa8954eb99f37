import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Bridge.Components

// The status and the facts of a component.
Column {
    id: facts
    required property ComponentDetailBridge detail

    spacing: Theme.margin

    Item {
        width: parent.width
        implicitHeight: Math.max(name.implicitHeight, status.y + status.height)

        Label {
            id: name
            anchors.left: parent.left
            anchors.right: status.left
            anchors.rightMargin: 2 * Theme.unit
            text: facts.detail.name
            font.pointSize: Theme.title
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        Pill {
            id: status
            anchors.right: parent.right
            anchors.baseline: name.baseline
            width: Math.min(implicitWidth, parent.width * 0.4)
            pill: facts.detail.status
            pointSize: Theme.subheadline
        }
    }
    GroupBox {
        visible: facts.detail.showsDetails
        width: parent.width
        title: qsTr("Details")

        Repeater {
            model: facts.detail.details
            FactLine {
                required property fact modelData
                width: parent.width
                fact: modelData
                isIndented: facts.detail.details[0].symbol !== ""
                onFollowed: facts.detail.openURL()
            }
        }
    }
    GroupBox {
        visible: facts.detail.description !== ""
        width: parent.width
        title: qsTr("Description")

        Label {
            width: parent.width
            text: facts.detail.description
            wrapMode: Text.Wrap
        }
    }
}
