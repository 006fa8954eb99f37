import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Maintenances
import Larkspan.Kit

RecordRow {
    id: delegate
    required property maintenanceRow row

    name: row.title
    description: row.status.text
    tone: row.status.tone
    trailing: Symbol {
        width: Theme.smallIconSize
        height: width
        name: "chevron.right"
        color: Theme.secondary
    }

    Pill {
        id: status
        pill: delegate.row.status
        pointSize: Theme.caption2
        isBold: true
        sidePadding: Theme.narrowGap
        topPadding: Theme.halfUnit / 2
    }
    Label {
        height: Math.max(implicitHeight, status.height)
        text: delegate.row.date
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
}
