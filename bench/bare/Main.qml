import QtQuick

Window {
    width: 760
    height: 600
    visible: true
    title: "Bare"

    Rectangle {
        anchors.fill: parent
        color: "#f4f5f7"
    }
}
