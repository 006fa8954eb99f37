import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

T.MenuSeparator {
    implicitHeight: Theme.hairline + 2 * Theme.unit
    topPadding: Theme.unit
    bottomPadding: Theme.unit
    contentItem: Rectangle {
        implicitHeight: Theme.hairline
        color: Theme.raisedLine
    }
}
