import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

T.Menu {
    id: menu
    y: Theme.menuTop
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

    background: Surface {}
    exit: FadeOut {}

    FadeIn {
        target: menu
    }
}
