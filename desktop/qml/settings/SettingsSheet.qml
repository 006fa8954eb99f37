import QtQuick
import Larkspan
import Larkspan.Bridge

Sheet {
    id: sheet
    required property SettingsBridge settings

    title: qsTr("Settings")

    // The field and its button come and go; the focus does not go with them.
    readonly property bool takesKey: !settings.showsSavedKey
    onTakesKeyChanged: {
        if (takesKey) field.forceActiveFocus(Qt.OtherFocusReason)
        else doneButton.forceActiveFocus(Qt.OtherFocusReason)
    }
    barItems: CommandButton {
        id: doneButton
        text: qsTr("Done")
        onClicked: sheet.close()
    }

    Label {
        width: parent.width
        text: qsTr("Connect to your Kestrune account")
        color: Theme.secondary
        wrapMode: Text.Wrap
    }

    GroupBox {
        width: parent.width
        title: qsTr("Kestrune API Key")

        IconLabel {
            width: parent.width
            visible: sheet.settings.showsSavedKey
            symbol: "key.fill"
            text: qsTr("API key saved")
        }
        SecretField {
            id: field
            focus: true
            width: parent.width
            visible: !sheet.settings.showsSavedKey
            name: qsTr("API key")
            placeholderText: qsTr("Paste your API key here")
            onTextEdited: sheet.settings.edit(text)

            // The key has been stored or deleted, and leaves the field.
            readonly property bool holdsKey: sheet.settings.holdsKey
            onHoldsKeyChanged: if (!holdsKey) clear()
        }
        IconLabel {
            width: parent.width
            visible: text !== ""
            symbol: sheet.settings.marker.symbol
            text: sheet.settings.marker.text
            tone: sheet.settings.marker.tone
            showsProgress: sheet.settings.marker.showsProgress
        }
        IconLabel {
            width: parent.width
            visible: !sheet.settings.showsSavedKey
            symbol: "lock.shield"
            text: qsTr("Your API key is stored securely in the Keychain.")
            tone: Tone.Secondary
            pointSize: Theme.subheadline
        }
        Flow {
            width: parent.width
            spacing: Theme.unit

            CommandButton {
                visible: !sheet.settings.showsSavedKey
                enabled: sheet.settings.isSaveEnabled
                text: qsTr("Save & Verify")
                isProminent: true
                onClicked: sheet.settings.saveAndVerify()
            }
            CommandButton {
                visible: sheet.settings.hasExistingKey
                text: qsTr("Delete API Key")
                isDestructive: true
                onClicked: sheet.settings.confirmDelete()
            }
        }
    }

    GroupBox {
        width: parent.width
        title: qsTr("About")

        Label {
            width: parent.width
            text: qsTr("Larkspan monitors your Kestrune status pages from the menu bar.")
            wrapMode: Text.Wrap
        }
        Label {
            width: parent.width
            text: qsTr("Create an API key in your Kestrune dashboard with read access to status pages, incidents, maintenances, and monitors.")
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }

    PopupLoader {
        isShown: sheet.settings.showsDeleteConfirmation
        onDismissed: sheet.settings.cancelDelete()
        sourceComponent: ConfirmDialog {
            confirmation: sheet.settings.deleteConfirmation
            onConfirmed: sheet.settings.deleteKey()
        }
    }
}
