import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Maintenances
import Larkspan.Events
import Larkspan.Kit

// The part above a maintenance's message: its status, and the times of its states.
Column {
    id: facts
    required property MaintenanceDetailBridge maintenance

    spacing: Theme.margin
    bottomPadding: maintenance.showsDescription ? Theme.unit : 0

    RecordHeader {
        width: parent.width
        title: facts.maintenance.maintenanceTitle
        titleHeight: Theme.smallDetailTitleHeight
        pointSize: Theme.title2
        pills: facts.maintenance.pills
    }
    TimelineGroup {
        width: parent.width
        rows: facts.maintenance.timeline
        hasApart: facts.maintenance.recordRows.length > 0

        Repeater {
            model: facts.maintenance.recordRows
            TimelineLine {
                required property timelineRow modelData
                width: parent.width
                row: modelData
            }
        }
    }
    GroupBox {
        visible: facts.maintenance.showsDescription
        width: parent.width
        title: qsTr("Description")
        symbol: "doc.text"
        hasCard: false
    }
}
