import QtQuick
import Larkspan.Kit

// A field under its small title.
RevealedColumn {
    id: field
    required property string title
    property string symbol
    property alias contentSpacing: column.spacing
    default property alias content: column.data

    spacing: Theme.unit

    GroupBox {
        title: field.title
        symbol: field.symbol
        hasCard: false
    }
    Column {
        id: column
        width: parent.width
    }
}
