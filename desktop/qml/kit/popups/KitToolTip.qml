import QtQuick
import QtQuick.Templates as T
import Larkspan.Kit

T.ToolTip {
    id: tip
    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + Theme.halfUnit : 0
    implicitWidth: Math.min(implicitContentWidth + leftPadding + rightPadding, Theme.sheetWidth * Theme.scale,
        T.Overlay.overlay ? T.Overlay.overlay.width - 2 * Theme.unit : Infinity)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Theme.unit
    padding: Theme.unit
    topPadding: Theme.halfUnit
    bottomPadding: Theme.halfUnit
    delay: 600
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Label {
        // An invisible text need not be laid out.
        text: tip.visible ? tip.text : ""
        font.pointSize: Theme.caption
        color: Theme.card
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.pillRadius
        color: Theme.text
    }
    exit: FadeOut {}

    FadeIn {
        target: tip
    }
}
