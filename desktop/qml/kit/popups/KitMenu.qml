import QtQuick
import QtQuick.Templates as T
import Larkspan

T.Menu {
    id: menu
    y: parent ? parent.height + Theme.halfUnit : 0
    implicitWidth: list.childrenRect.width + leftPadding + rightPadding
    implicitHeight: list.contentHeight + topPadding + bottomPadding
    margins: Theme.unit
    padding: Theme.halfUnit

    delegate: KitMenuItem {}

    contentItem: ListView {
        id: list
        implicitHeight: list.contentHeight
        interactive: list.contentHeight > list.height
        clip: true
        currentIndex: menu.currentIndex
        model: menu.contentModel
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.card
        border.width: Theme.hairline
        border.color: Theme.line
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quick; easing.type: Easing.OutCubic }
    }
}
