import QtQuick
import Larkspan
import Larkspan.Bridge
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    id: group
    required property KitSamples samples

    title: "Rows and lists"
    remark: "A row is one stop of the keyboard and one object for screen readers. Its states fill it up to its inset."

    Specimens {
        width: parent.width
        name: "CardList, CardRow: at rest, hovered, pressed, focused, at rest"

        Rectangle {
            width: parent.width
            height: pages.contentHeight + 2 * Theme.margin
            radius: Theme.cardRadius
            color: Theme.window

            CardList {
                id: pages
                anchors.fill: parent
                name: "Status Pages"
                rows: group.samples.pages
                delegate: StatusPageRow {
                    id: page
                    Pose {
                        kind: ["", "hovered", "pressed", "focused"][page.index] ?? ""
                        reach: 0
                        target: page
                    }
                }
            }
        }
    }
    Specimens {
        width: parent.width
        name: "RecordRow: at rest, hovered, pressed, focused"

        Rectangle {
            width: parent.width
            height: records.height
            radius: Theme.cardRadius
            color: Theme.card
            border.width: Theme.hairline
            border.color: Theme.line

            Column {
                id: records
                width: parent.width

                Repeater {
                    model: ["", "hovered", "pressed", "focused"]
                    Pose {
                        id: place
                        required property string modelData
                        required property int index
                        kind: modelData
                        reach: 0
                        target: record
                        width: records.width
                        height: record.height

                        RecordRow {
                            id: record
                            index: place.index
                            width: parent.width
                            name: "Login errors for EU customers"
                            description: "Active"
                            tone: Tone.Red
                            trailing: Symbol {
                                width: Theme.smallIconSize
                                height: width
                                name: "chevron.right"
                                color: Theme.secondary
                            }
                            Pill { pill: group.samples.pill("Active", Tone.Red) }
                            Pill { pill: group.samples.pill("Major", Tone.Orange) }
                        }
                    }
                }
            }
        }
    }
    Specimens {
        width: parent.width
        name: "LinkRow: at rest, hovered, pressed, focused"

        Repeater {
            model: ["", "hovered", "pressed", "focused"]
            Pose {
                id: link
                required property string modelData
                kind: modelData
                target: opener
                width: parent.width / 2 - 2 * Theme.unit
                height: opener.height

                LinkRow {
                    id: opener
                    width: parent.width
                    link: group.samples.link("globe", "Website", "status.example.org")
                }
            }
        }
    }
    Specimens {
        width: parent.width
        name: "CardEnd: the top and the bottom of a card among several"

        CardEnd { width: (parent.width - parent.spacing) / 2; isFirst: true }
        CardEnd { width: (parent.width - parent.spacing) / 2; isFirst: false }
    }
    Specimens {
        width: parent.width
        name: "ScrollingColumn, SlimScrollBar"

        Rectangle {
            width: parent.width / 2
            height: 2.5 * Theme.rowHeight
            radius: Theme.cardRadius
            color: Theme.window

            ScrollingColumn {
                anchors.fill: parent
                name: "Update"
                takesFocus: true

                Label {
                    width: parent.width
                    text: "We have found the cause and restored the logins of all customers in Europe. We keep watching them, and tell you here what has happened as soon as we know more. Nobody has lost data."
                    wrapMode: Text.Wrap
                }
                Label {
                    text: "The next update follows within an hour."
                    width: parent.width
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
