#pragma once

#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Screen.h"

namespace larkspan {

inline constexpr auto workURL = "https://service.example/user/api/v1/maintenances/1";

// The time is nine in the morning of 20 November 2026.
inline const std::string isScheduled = R"(, "start_at": "2026-11-20T10:00:00Z", "end_at": "2026-11-20T12:00:00Z")";
inline const std::string isInProgress = R"(, "start_at": "2026-11-20T08:00:00Z", "end_at": "2026-11-20T12:00:00Z")";
inline const std::string isCompleted = R"(, "start_at": "2026-11-20T07:00:00Z", "end_at": "2026-11-20T08:30:00Z")";

inline std::string work(const std::string& id, const std::string& title, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "title": ")" + title + R"(", "status_page_id": "a")" + rest + "}";
}

/// The maintenances of page "a", opened and used with the keyboard only.
class MaintenancesOnScreen : public testing::Test, public Screen {
protected:
    using Role = QAccessible::Role;
    using Sent = std::vector<std::string>;

    MaintenancesOnScreen()
    {
        servePages({"a"}, {});
        refresh();
        serve({work("1", "Upgrade", isScheduled + R"(, "message": "We **upgrade**.")"),
            work("2", "Old work", isCompleted)});
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        press(Qt::Key_5, Qt::ControlModifier);
        transport.requests.clear();
    }

    void serve(const std::vector<std::string>& maintenances)
    {
        std::string joined;
        for (const auto& each : maintenances) joined += (joined.empty() ? "" : ",") + each;
        transport.script(maintenancesURL, 200, "[" + joined + "]");
    }

    void openFirst()
    {
        item(Role::List, QStringLiteral("Maintenances")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        transport.requests.clear();
    }

    void openEditor()
    {
        openFirst();
        choose("More Actions");
        chooseInMenu("Edit");
    }

    void openForm()
    {
        transport.script("https://service.example/user/api/components?status_page_id=a", 200, "[]");
        transport.script("https://service.example/user/api/component-groups?status_page_id=a", 200, "[]");
        choose("New Maintenance");
        transport.requests.clear();
    }

    /// Presses a button as the keyboard does.
    void choose(const char* name)
    {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    /// Moves down the open menu to that row and chooses it.
    void chooseInMenu(const char* name)
    {
        for (int rows = 0; rows < 5; ++rows) {
            press(Qt::Key_Down);
            if (window().activeFocusItem()->property("text") == QString::fromUtf8(name)) return press(Qt::Key_Return);
        }
        FAIL() << "the menu has no " << name;
    }

    void focus(Role role, const char* name)
    {
        item(role, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        settle();
    }

    void typeLetters(const char* text)
    {
        for (const char* letter = text; *letter != '\0'; ++letter) QTest::keyClick(&window(), *letter);
        settle();
    }

    void type(const char* field, const char* text)
    {
        focus(Role::EditableText, field);
        typeLetters(text);
    }

    QString textOf(const char* field) const
    {
        return item(Role::EditableText, QString::fromUtf8(field)).property("text").toString();
    }

    bool isEnabled(const char* button) const { return item(Role::Button, QString::fromUtf8(button)).isEnabled(); }
    bool offers(const char* button) const { return names(Role::Button).contains(QString::fromUtf8(button)); }
    bool asks(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }
    bool shows(const char* text) const { return Screen::shows(QString::fromUtf8(text)); }
    std::string focused() const { return accessibleName(*mainWindow.window().activeFocusItem()).toStdString(); }

    static QString accessibleName(QQuickItem& item)
    {
        auto* const interface = QAccessible::queryAccessibleInterface(&item);
        return interface ? interface->text(QAccessible::Name) : QString();
    }

    /// "METHOD url body" of each request.
    Sent sent() const
    {
        Sent lines;
        for (const auto& request : transport.requests) {
            lines.push_back(request.method + " " + request.url + (request.body ? " " + *request.body : ""));
        }
        return lines;
    }

    const std::string fetched = std::string("GET ") + maintenancesURL;
    const std::string patched = std::string("PATCH ") + workURL + " ";
};

}  // namespace larkspan
