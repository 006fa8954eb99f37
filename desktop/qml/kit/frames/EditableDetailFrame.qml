import QtQuick
import Larkspan.Bridge
import Larkspan.Kit

// The screen of an opened record that can be edited: the button that closes it or its editor, and the questions before
// the record or typed text is lost.
ScreenFrame {
    id: frame
    required property EditableDetailBridge record

    isBusy: record.isBusy
    alert: record.alert
    onAlertDismissed: record.dismissAlert()

    leading: CommandButton {
        text: frame.record.closeLabel
        enabled: frame.record.isCloseEnabled
        onClicked: frame.record.close()
    }

    ConfirmLoader {
        isShown: frame.record.showsDeleteConfirmation
        confirmation: frame.record.deleteConfirmation
        onDismissed: frame.record.cancelDelete()
        onConfirmed: frame.record.deleteRecord()
    }
    ConfirmLoader {
        isShown: frame.record.showsDiscardConfirmation
        confirmation: frame.record.discardConfirmation
        onDismissed: frame.record.keepEditing()
        onConfirmed: frame.record.discardChanges()
    }
}
