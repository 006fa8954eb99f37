import QtQuick
import Larkspan
import Larkspan.Gallery

SheetGroup {
    title: "Screens"
    remark: "ScreenFrame, HeaderBar, ContentArea, PageStack, PushedPage, ListArea and EditableDetailFrame as the program's own screens use them, in the smallest window."

    Flow {
        width: parent.width
        spacing: 2 * Theme.unit

        Repeater {
            model: ["dashboard-list-stale-narrow", "maintenances-list-narrow", "incident-whole", "maintenance-delete", "maintenance-scheduled"]
            Stand {
                required property string modelData
                scene: modelData
                width: 480
                height: modelData === "incident-whole" ? 900 : modelData === "maintenance-scheduled" ? 340 : 440
            }
        }
    }
}
