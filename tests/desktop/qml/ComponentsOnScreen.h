#pragma once

#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Screen.h"

namespace larkspan {

using Role = QAccessible::Role;

inline constexpr auto componentsURL = "https://service.example/user/api/components?status_page_id=a";
inline constexpr auto groupsURL = "https://service.example/user/api/component-groups?status_page_id=a";
inline constexpr auto apiURL = "https://service.example/user/api/components/1";
inline const QStringList wholeList{"REST API", "Worker", "Site", "Old"};

inline std::string component(const std::string& id, const std::string& name, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "name": ")" + name + "\"" + rest + "}";
}

inline std::string inGroup(const std::string& id)
{
    return R"(, "component_group_id": ")" + id + "\"";
}

/// The components of page "a", opened and used with the keyboard only.
class ComponentsOnScreen : public testing::Test, public Screen {
protected:
    ComponentsOnScreen()
    {
        servePages({"a"}, {});
        serve({component("1", "REST API",
                   R"(, "monitor_state": "degradedperformance", "description": "Serves all.",
                   "url": "https://status.example/api")"
                       + inGroup("core")),
            component("2", "Worker", R"(, "monitor_state": "up")" + inGroup("core")),
            component("3", "Site", R"(, "monitor_state": "partialoutage")"), component("4", "Old", inGroup("gone"))});
        transport.script(groupsURL, 200, R"([{"id": "core", "name": "Core"}, {"id": "edge", "name": "Edge"}])");
        refresh();
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        press(Qt::Key_4, Qt::ControlModifier);
        transport.requests.clear();
    }

    void serve(const std::vector<std::string>& components)
    {
        std::string joined;
        for (const auto& each : components) joined += (joined.empty() ? "" : ",") + each;
        transport.script(componentsURL, 200, "[" + joined + "]");
    }

    void enterAgain()
    {
        press(Qt::Key_1, Qt::ControlModifier);
        press(Qt::Key_4, Qt::ControlModifier);
    }

    /// Opens the first component by its letter.
    void open(Qt::Key letter = Qt::Key_R)
    {
        item(Role::List, QStringLiteral("Components")).forceActiveFocus(Qt::TabFocusReason);
        press(letter);
        press(Qt::Key_Return);
        transport.requests.clear();
    }

    void edit()
    {
        open();
        choose("Edit");
    }

    /// Presses a button as the keyboard does.
    void choose(const char* name)
    {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    /// Replaces the text of a field by typing.
    void retype(const char* field, const char* text)
    {
        auto& entry = item(Role::EditableText, QString::fromUtf8(field));
        entry.forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        for (const char* letter = text; *letter != '\0'; ++letter) QTest::keyClick(&window(), *letter);
        settle();
    }

    QString typed(const char* field) const
    {
        return item(Role::EditableText, QString::fromUtf8(field)).property("text").toString();
    }

    bool isEnabled(const char* button) const { return item(Role::Button, QString::fromUtf8(button)).isEnabled(); }
    bool asks(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }
    bool isOpen() const { return names(Role::Heading).contains(QStringLiteral("Component Details")); }

    QString litSegment() const
    {
        for (const auto& thing : things()) {
            if (thing.role != Role::RadioButton) continue;
            if (QAccessible::queryAccessibleInterface(thing.object)->state().checked) return thing.name;
        }
        return {};
    }

    QString focused() const
    {
        const auto* interface = QAccessible::queryAccessibleInterface(mainWindow.window().activeFocusItem());
        return interface ? interface->text(QAccessible::Name) : QString();
    }

    /// "METHOD url" of each request.
    std::vector<std::string> sent() const
    {
        std::vector<std::string> lines;
        for (const auto& request : transport.requests) lines.push_back(request.method + " " + request.url);
        return lines;
    }
};

}  // namespace larkspan
