#pragma once

#include <QTest>

#include <gtest/gtest.h>

#include "Screen.h"
#include "api/KeychainHelper.h"

namespace larkspan {

using Role = QAccessible::Role;

inline const auto saveLabel = QStringLiteral("Save & Verify");
inline const auto deleteLabel = QStringLiteral("Delete API Key");
inline const auto savedText = QStringLiteral("API key saved");
inline const auto fieldName = QStringLiteral("API key");

/// The settings sheet in the real window.
class SettingsOnScreen : public testing::Test, public Screen {
protected:
    /// Opens the sheet from the gear button, as the keyboard does.
    void open()
    {
        item(Role::Button, QStringLiteral("Settings")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    void openWithoutKey()
    {
        api::KeychainHelper::deleteAPIKey(credentials);
        open();
    }

    /// Runs until the window is idle while the keyring has not answered yet.
    void settleWithoutTheClient()
    {
        for (int turn = 0; turn < 3; ++turn) {
            main.run();
            QCoreApplication::processEvents();
            window().grabWindow();
        }
    }

    QQuickItem& field() const { return item(Role::EditableText, fieldName); }
    QQuickItem& button(const QString& name) const { return item(Role::Button, name); }

    void type(const QString& text)
    {
        field().forceActiveFocus(Qt::TabFocusReason);
        for (const auto letter : text) QTest::keyClick(&window(), letter.toLatin1());
        settle();
    }

    /// Presses a button of the sheet as the keyboard does.
    void choose(const QString& name)
    {
        button(name).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    /// Sets the service's answer to questions about a key.
    void answerKey(int status) { transport.script(pagesURL, status, "[]"); }

    bool hasField() const { return names(Role::EditableText).contains(fieldName); }
    bool hasButton(const QString& name) const { return names(Role::Button).contains(name); }
    bool isOpen() const { return names(Role::Dialog).contains(QStringLiteral("Settings")); }
    bool asksToDelete() const { return names(Role::Dialog).contains(deleteLabel); }
    QString focused() const
    {
        const auto* interface = QAccessible::queryAccessibleInterface(mainWindow.window().activeFocusItem());
        return interface ? interface->text(QAccessible::Name) : QString();
    }
};

}  // namespace larkspan
