import QtQuick
import Larkspan.Bridge
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    id: group
    required property KitSamples samples

    title: "In place of content"
    remark: "What is running, what has failed and how to go on, or that there is nothing yet."

    Row {
        id: states
        width: parent.width

        PlaceholderState {
            width: parent.width / 3
            placeholder: group.samples.placeholder("", "", "Loading incidents", true, false)
        }
        PlaceholderState {
            width: parent.width / 3
            placeholder: group.samples.placeholder("exclamationmark.triangle", "Could Not Load", "Server returned HTTP status code 503.", false, true)
        }
        PlaceholderState {
            width: parent.width / 3
            placeholder: group.samples.placeholder("checkmark.circle", "No Incidents", "This page has no incidents.", false, false)
        }
    }
}
