import QtQuick
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    title: "Screens"
    remark: "ScreenFrame, HeaderBar, ContentArea, PageStack, PushedPage, ListArea and EditableDetailFrame as the program's own screens use them, in the smallest window."

    Flow {
        width: parent.width
        spacing: 2 * Theme.unit

        Repeater {
            model: [
                { scene: "dashboard-list-stale-narrow", height: 440 },
                { scene: "maintenances-list-narrow", height: 440 },
                { scene: "incident-whole", height: 900 },
                { scene: "incident-whole", height: 340 },
                { scene: "maintenance-delete", height: 440 }
            ]
            Stand {
                required property var modelData
                scene: modelData.scene
                width: 480
                height: modelData.height
            }
        }
    }
}
