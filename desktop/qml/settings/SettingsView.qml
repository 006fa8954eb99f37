import QtQuick
import Larkspan.Bridge
import Larkspan.Bridge.Workspace
import Larkspan.Kit

Sheet {
    id: sheet
    required property SettingsBridge settings

    title: qsTr("Settings")
    // A press in the field must not move it.
    keptInView: field.activeFocus && field.focusReason !== Qt.MouseFocusReason ? entry : null

    // The field and its button appear and disappear; the focus must not be lost with them.
    readonly property bool takesKey: settings.showsField
    onTakesKeyChanged: {
        if (takesKey) field.forceActiveFocus(Qt.OtherFocusReason)
        else doneButton.forceActiveFocus(Qt.OtherFocusReason)
    }
    barItems: CommandButton {
        id: doneButton
        focus: true
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
            visible: text !== ""
            text: sheet.settings.search.text
            tone: sheet.settings.search.tone
            showsProgress: sheet.settings.search.showsProgress
        }
        Flow {
            width: parent.width
            spacing: 2 * Theme.unit
            visible: sheet.settings.showsSavedKey

            IconLabel {
                width: Math.min(naturalWidth, parent.width)
                symbol: "key.fill"
                text: qsTr("API key saved")
            }
            IconLabel {
                width: Math.min(naturalWidth, parent.width)
                visible: text !== ""
                symbol: sheet.settings.marker.symbol
                text: sheet.settings.marker.text
                tone: sheet.settings.marker.tone
                showsProgress: sheet.settings.marker.showsProgress
            }
        }
        // A key is of no use without the button below it.
        RevealedColumn {
            id: entry
            width: parent.width
            spacing: Theme.unit + Theme.halfUnit

            SecretField {
                id: field
                width: parent.width
                visible: sheet.settings.showsField
                name: qsTr("API key")
                maximumLength: sheet.settings.longestEntry
                placeholderText: qsTr("Paste your API key here")
                onTextEdited: {
                    sheet.settings.edit(text)
                    sheet.reveal(entry)
                }

                // When the key has been stored or deleted, it is removed from the field.
                readonly property bool holdsKey: sheet.settings.holdsKey
                onHoldsKeyChanged: if (!holdsKey) clear()
            }
            IconLabel {
                width: parent.width
                visible: sheet.settings.showsField && text !== ""
                symbol: sheet.settings.refusal.symbol
                text: sheet.settings.refusal.text
                tone: sheet.settings.refusal.tone
            }
            IconLabel {
                width: parent.width
                visible: sheet.settings.showsField && text !== ""
                symbol: sheet.settings.demoHint.symbol
                text: sheet.settings.demoHint.text
                tone: sheet.settings.demoHint.tone
            }
            IconLabel {
                width: parent.width
                visible: sheet.settings.showsField
                symbol: "lock.shield"
                text: qsTr("Your API key is stored securely in the Keychain.")
                tone: Tone.Secondary
                pointSize: Theme.subheadline
            }
            Flow {
                width: parent.width
                spacing: Theme.unit

                CommandButton {
                    visible: sheet.settings.showsField
                    enabled: sheet.settings.isSaveEnabled
                    isBusy: sheet.settings.marker.showsProgress
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

    ConfirmLoader {
        isShown: sheet.settings.showsDeleteConfirmation
        confirmation: sheet.settings.deleteConfirmation
        onDismissed: sheet.settings.cancelDelete()
        onConfirmed: sheet.settings.deleteKey()
    }
}
