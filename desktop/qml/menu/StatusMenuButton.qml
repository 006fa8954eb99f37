import QtQuick
import Larkspan.Bridge.Menu
import Larkspan.Kit

// Opens the rows of the panel's item, for desktops that show no such item and for users who are in the window.
MenuButton {
    id: button
    required property StatusMenuBridge menu

    symbol: "line.3.horizontal"
    help: qsTr("Menu")
    file: Qt.resolvedUrl("StatusMenu.qml")
    given: ({ menu: button.menu })
}
