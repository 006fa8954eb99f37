import QtQuick
import Larkspan.Gallery
import Larkspan.Kit

SheetGroup {
    id: group
    required property KitSamples samples

    title: "Choices"
    remark: "A few side by side, many in a list that opens; what takes effect at once is a toggle."

    StateHead {
        width: parent.width
    }
    StateRow {
        width: parent.width
        name: "Toggle, off"
        isWide: true
        piece: Toggle { text: "Notify"; isOn: false }
        selected: Toggle { text: "Notify"; isOn: true }
    }
    StateRow {
        width: parent.width
        name: "Toggle, on"
        isWide: true
        piece: Toggle { text: "Notify"; isOn: true }
    }
    StateRow {
        width: parent.width
        name: "ChoicePicker"
        isWide: true
        piece: ChoicePicker { text: "Group"; choices: group.samples.choices(["Europe"]); selected: "0" }
    }
    StateRow {
        width: parent.width
        name: "SegmentedPicker"
        isWide: true
        piece: SegmentedPicker { name: "Range"; segments: ["Day", "Week"]; selected: -1; choosesTab: false }
        selected: SegmentedPicker { name: "Range"; segments: ["Day", "Week"]; selected: 0; choosesTab: false }
    }
    StateRow {
        width: parent.width
        name: "ChoiceRow"
        isWide: true
        hasHover: false
        isFocusable: false
        hasDisabled: false
        piece: ChoiceRow { index: 0; modelData: group.samples.choices(["Europe"])[0] }
        selected: ChoiceRow { index: 0; modelData: group.samples.choices(["Europe"])[0]; isCurrent: true }
    }
    StateRow {
        width: parent.width
        name: "KitMenuItem"
        isWide: true
        hasHover: false
        isFocusable: false
        piece: KitMenuItem { text: "Edit"; symbol: "pencil" }
        selected: KitMenuItem { text: "Edit"; symbol: "pencil"; highlighted: true }
    }
    StateRow {
        width: parent.width
        name: "destructive"
        isWide: true
        hasHover: false
        isFocusable: false
        piece: KitMenuItem { text: "Delete"; symbol: "trash"; isDestructive: true }
        selected: KitMenuItem { text: "Delete"; symbol: "trash"; isDestructive: true; highlighted: true }
    }
}
