import QtQuick
import Larkspan.Bridge
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    id: group
    required property KitSamples samples

    title: "Popups"
    remark: "Each opens in the one window, keeps the focus while it is open, closes on Escape and gives the focus back."

    Flow {
        id: stands
        width: parent.width
        spacing: 2 * Theme.unit

        PopupStand {
            width: (parent.width - parent.spacing) / 2

            ConfirmLoader {
                isShown: true
                confirmation: group.samples.confirmation("Delete Incident?", "This cannot be undone.", "Delete", "Cancel")
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2

            AlertLoader {
                alert: group.samples.alert("Server returned HTTP status code 409.")
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2

            PopupLoader {
                isShown: true
                sourceComponent: MessageDialog {
                    title: "Checking for updates"
                    showsProgress: true
                    CommandButton {
                        text: "Close"
                        focus: true
                    }
                }
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2

            PopupLoader {
                isShown: true
                sourceComponent: Sheet {
                    title: "Settings"
                    barItems: CommandButton { text: "Done"; isProminent: true }

                    Toggle {
                        width: parent.width
                        text: "Notify of new incidents"
                        isOn: true
                    }
                    TextEntry {
                        width: parent.width
                        name: "Title"
                        text: "A sheet scrolls if the window is small"
                    }
                }
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2

            ToolbarButton {
                id: opener
                x: Theme.margin
                y: Theme.margin
                symbol: "ellipsis.circle"
                help: "More Actions"
            }
            KitMenu {
                parent: opener
                // Not by its initial properties, of which Qt 6.8 may set the parent last.
                Component.onCompleted: open()

                KitMenuItem { text: "Refresh"; symbol: "arrow.clockwise" }
                KitMenuItem { text: "Edit"; symbol: "pencil" }
                KitMenuItem { text: "Cancel Maintenance"; symbol: "calendar.badge.minus"; enabled: false }
                KitMenuSeparator {}
                KitMenuItem { text: "Delete"; symbol: "trash"; isDestructive: true }
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2

            ChoicePicker {
                id: picker
                x: Theme.margin
                y: Theme.margin
                width: parent.width - 2 * x
                text: "Component Group"
                readonly property var regions: group.samples.choices(["Entire status page", "Europe", "North America", "Asia"])
                choices: regions
                selected: "1"
                Component.onCompleted: clicked()
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2
            height: implicitHeight / 2

            ToolbarButton {
                id: helped
                anchors.horizontalCenter: parent.horizontalCenter
                y: Theme.margin
                symbol: "arrow.clockwise"
                help: "Refresh"
            }
            KitToolTip {
                parent: helped
                delay: 0
                text: "Refresh (F5)"
                visible: true
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2

            TabPicker {
                id: tabs
                x: Theme.margin
                y: Theme.margin
                width: parent.width - 2 * x
                name: "View"
                segments: ["Overview", "Incidents of the last year", "Monitors of every region", "Components and their groups"]
                selected: 1
            }
            TabMenu {
                parent: tabs
                picker: tabs
                Component.onCompleted: open()
            }
        }
        PopupStand {
            width: (parent.width - parent.spacing) / 2
            height: implicitHeight / 2

            BusyOverlay {
                text: "Saving"
            }
        }
    }
}
