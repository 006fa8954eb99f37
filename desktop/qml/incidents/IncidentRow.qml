import QtQuick
import Larkspan
import Larkspan.Bridge

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
        visible: delegate.row.severity.text !== ""
        anchors.verticalCenter: parent.verticalCenter
        pill: delegate.row.severity
        pointSize: Theme.caption2
        isBold: true
        tint: Theme.badgeOpacity
        sidePadding: Theme.halfUnit
        topPadding: Theme.halfUnit / 2
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width - x)
        text: delegate.row.date
        font.pointSize: Theme.caption
        color: Theme.secondary
    }
}
