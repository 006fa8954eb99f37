import QtQuick
import Larkspan.Bridge.Incidents
import Larkspan.Kit

RecordRow {
    id: delegate
    required property incidentRow row

    name: row.title
    description: row.status.text
    tone: row.tone
    trailing: Pill {
        pill: delegate.row.status
    }

    Pill {
        id: severity
        visible: delegate.row.hasSeverity
        pill: delegate.row.severity
        pointSize: Theme.caption2
        isBold: true
        tint: Theme.badgeOpacity
        sidePadding: Theme.halfUnit
    }
    Label {
        height: severity.visible ? Math.max(implicitHeight, severity.height) : implicitHeight
        text: delegate.row.date
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
}
