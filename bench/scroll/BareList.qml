import QtQuick

// The minimum for a list of such rows: the same items are drawn for each row, with nothing around them.
Window {
    id: window
    property int rows: 0

    ListView {
        anchors.fill: parent
        model: window.rows
        reuseItems: true
        delegate: Item {
            id: row
            required property int index
            width: ListView.view.width
            height: 44

            Rectangle {
                width: parent.width
                height: 1
                color: "#e3e6ea"
            }
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                x: 12
                width: 16
                height: 16
                radius: 8
                color: "#17703b"
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                x: 40
                text: "Status page " + row.index
                textFormat: Text.PlainText
                renderType: Text.NativeRendering
            }
            Rectangle {
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: label.width + 16
                height: label.height + 8
                radius: 6
                color: "#2617703b"

                Text {
                    id: label
                    anchors.centerIn: parent
                    text: "Operational"
                    textFormat: Text.PlainText
                    renderType: Text.NativeRendering
                }
            }
        }
    }
}
