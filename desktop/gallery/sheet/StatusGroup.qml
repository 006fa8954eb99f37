import QtQuick
import Larkspan.Bridge
import Larkspan.Events
import Larkspan.Gallery
import Larkspan.Kit
import Larkspan.Monitors

SheetGroup {
    id: group
    required property KitSamples samples

    title: "Status"
    remark: "Shape, colour and word together: none of them alone tells a status."

    Specimens {
        width: parent.width
        name: "Pill"
        Pill { pill: group.samples.pill("Operational", Tone.Green) }
        Pill { pill: group.samples.pill("Degraded", Tone.Yellow) }
        Pill { pill: group.samples.pill("Major", Tone.Orange) }
        Pill { pill: group.samples.pill("Down", Tone.Red) }
        Pill { pill: group.samples.pill("Maintenance", Tone.Blue) }
        Pill { pill: group.samples.pill("Unknown", Tone.Gray) }
        Pill { pill: group.samples.pill("Resolved", Tone.Green, "checkmark.circle.fill") }
        Pill { pill: group.samples.pill("Scheduled", Tone.Blue); isBold: true }
    }
    Specimens {
        width: parent.width
        name: "MetricBadge"
        MetricBadge { badge: group.samples.metricBadge("checkmark.shield", "99.98 %", "Uptime", Tone.Green, false) }
        MetricBadge { badge: group.samples.metricBadge("timer", "182 ms", "Latency", Tone.Blue, false) }
        MetricBadge { badge: group.samples.metricBadge("arrow.up.right", "Slower", "Trend", Tone.Orange, true) }
    }
    Specimens {
        width: parent.width
        name: "MarkerLine"
        MarkerLine { marker: group.samples.marker("", "Updated 12s ago", Tone.Secondary, false) }
        MarkerLine { marker: group.samples.marker("exclamationmark.triangle.fill", "Stale", Tone.Orange, false) }
        MarkerLine { marker: group.samples.marker("", "Refreshing", Tone.Secondary, true) }
    }
    Specimens {
        width: parent.width
        name: "IconLabel"
        IconLabel { width: naturalWidth; symbol: "checkmark.circle.fill"; tone: Tone.Green; text: "Connected" }
        IconLabel { width: naturalWidth; symbol: "xmark.circle.fill"; tone: Tone.Red; text: "The service refused the key." }
        IconLabel { width: naturalWidth; showsProgress: true; text: "Verifying" }
    }
    Specimens {
        width: parent.width
        name: "BusyIndicator"
        BusyIndicator {}
    }
    Specimens {
        width: parent.width
        name: "RecordHeader, MarqueeText"
        RecordHeader {
            width: parent.width
            title: "Database upgrade in the EU region"
            pills: group.samples.pills
        }
    }
    Specimens {
        width: parent.width
        name: "GroupBox, FactLine, DurationLine, TimelineLine"

        GroupBox {
            width: (parent.width - parent.spacing) / 2
            title: "Details"
            symbol: "info.circle"

            FactLine { width: parent.width; fact: group.samples.fact("Region", "Europe", false) }
            FactLine { width: parent.width; fact: group.samples.fact("Address", "status.example.org", true) }
            DurationLine { width: parent.width; duration: "1 hour 30 minutes" }
        }
        TimelineGroup {
            width: (parent.width - parent.spacing) / 2
            hasApart: false
            rows: group.samples.timeline
        }
    }
}
