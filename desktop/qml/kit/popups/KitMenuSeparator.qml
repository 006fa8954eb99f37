import QtQuick
import QtQuick.Templates as T
import Larkspan

T.MenuSeparator {
    implicitHeight: Theme.hairline + 2 * Theme.halfUnit
    topPadding: Theme.halfUnit
    bottomPadding: Theme.halfUnit
    contentItem: Rectangle {
        implicitHeight: Theme.hairline
        color: Theme.line
    }
}
