#pragma once

#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Screen.h"

namespace larkspan {

/// The incidents of page "a", opened and used with the keyboard only.
class IncidentsOnScreen : public testing::Test, public Screen {
protected:
    using Role = QAccessible::Role;

    static constexpr auto pageIncidentsURL = "https://service.example/user/api/v1/incidents?status_page_id=a";
    static constexpr auto incidentURL = "https://service.example/user/api/v1/incidents/1";
    static constexpr auto acknowledgeURL = "https://service.example/user/api/incidents/1/acknowledge";
    static constexpr auto createURL = "https://service.example/user/api/v1/incidents";
    static constexpr auto componentsURL = "https://service.example/user/api/components?status_page_id=a";
    static constexpr auto groupsURL = "https://service.example/user/api/component-groups?status_page_id=a";

    IncidentsOnScreen()
    {
        servePages({"a"}, {});
        serve({incident("1", "Login errors", R"(, "severity_name": "CRITICAL", "message": "We see **errors**.")"),
            incident("2", "Slow checkout", R"(, "acknowledged_at": "x")")});
        refresh();
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        press(Qt::Key_2, Qt::ControlModifier);
        transport.requests.clear();
    }

    void serve(const std::vector<std::string>& incidents)
    {
        std::string joined;
        for (const auto& each : incidents) joined += (joined.empty() ? "" : ",") + each;
        transport.script(pageIncidentsURL, 200, "[" + joined + "]");
    }

    void openFirst()
    {
        item(Role::List, QStringLiteral("Incidents")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
    }

    void openForm()
    {
        transport.script(componentsURL, 200, "[]");
        transport.script(groupsURL, 200, "[]");
        choose("New Incident");
    }

    /// Presses a button as the keyboard does.
    void choose(const char* name)
    {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    void type(const char* field, const char* text)
    {
        auto& entry = item(Role::EditableText, QString::fromUtf8(field));
        entry.forceActiveFocus(Qt::TabFocusReason);
        for (const char* letter = text; *letter != '\0'; ++letter) QTest::keyClick(&window(), *letter);
        settle();
    }

    bool isEnabled(const char* button) const { return item(Role::Button, QString::fromUtf8(button)).isEnabled(); }
    bool asks(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }

    /// "METHOD url" of each request.
    std::vector<std::string> sent() const
    {
        std::vector<std::string> lines;
        for (const auto& request : transport.requests) lines.push_back(request.method + " " + request.url);
        return lines;
    }
};

}  // namespace larkspan
