import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Components
import Larkspan.Kit

// The status and the facts of a component.
Column {
    id: facts
    required property ComponentDetailBridge detail

    spacing: Theme.margin

    ComponentHeader {
        width: parent.width
        name: facts.detail.name
        status: facts.detail.status
    }
    GroupBox {
        visible: facts.detail.showsDetails
        width: parent.width
        title: qsTr("Details")
        hasCard: facts.detail.details.length > 0

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
