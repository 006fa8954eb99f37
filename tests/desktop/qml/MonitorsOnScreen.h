#pragma once

#include <QQuickItem>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Screen.h"

namespace larkspan {

inline const std::string listURL = "https://service.example/user/api/v1/monitors";
inline const std::string metricsURL = "https://service.example/user/api/monitors/metrics?ids=1&range=24h";
inline const std::string pauseURL = "https://service.example/user/api/monitors/1/pause";
inline const std::string resumeURL = "https://service.example/user/api/monitors/1/resume";
inline const std::string runURL = "https://service.example/user/api/monitors/1/run";

inline const std::string day
    = R"({"metrics": {"1": {"avg_ms": 312, "uptime_percentage": 99.98, "latency": [180, 240, 210],
    "region_states": [{"region_id": "eu", "region_name": "Frankfurt", "status": "up", "avg_ms": 121}]}}})";

inline std::string monitor(const std::string& id, const std::string& name, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "name": ")" + name + R"(", "type": "http", "state": "up", "status_page_id": "a")"
        + rest + "}";
}

inline const std::string paused = R"(, "enabled": false)";

/// The monitors of page "a", opened and used with the keyboard only.
class MonitorsOnScreen : public testing::Test, public Screen {
protected:
    using Role = QAccessible::Role;
    using Lines = std::vector<std::string>;

    MonitorsOnScreen()
    {
        servePages({"a"}, {});
        serve({monitor("1", "Gateway", R"(, "target": "https://gateway.example/health", "interval_seconds": 300)"),
            monitor("2", "Mail", paused)});
        refresh();
        settle();
        item(Role::List, QStringLiteral("Status Pages")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        enter();
        transport.requests.clear();
    }

    void serve(const Lines& monitors)
    {
        std::string joined;
        for (const auto& each : monitors) joined += (joined.empty() ? "" : ",") + each;
        transport.script(listURL, 200, "[" + joined + "]");
    }

    void enter() { press(Qt::Key_3, Qt::ControlModifier); }

    void reenter()
    {
        press(Qt::Key_1, Qt::ControlModifier);
        enter();
    }

    QQuickItem& list() const { return item(Role::List, QStringLiteral("Monitors")); }

    /// Presses a button as the keyboard does.
    void choose(const char* name)
    {
        item(Role::Button, QString::fromUtf8(name)).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    QString focused() const
    {
        auto* const holder = QAccessible::queryAccessibleInterface(window().activeFocusItem());
        return holder ? holder->text(QAccessible::Name) : QString();
    }

    bool isEnabled(const char* button) const { return item(Role::Button, QString::fromUtf8(button)).isEnabled(); }
    bool asks(const char* title) const { return names(Role::Dialog).contains(QString::fromUtf8(title)); }

    Lines sent() const
    {
        Lines lines;
        for (const auto& request : transport.requests) lines.push_back(request.method + " " + request.url);
        return lines;
    }

    QQuickWindow& window() const { return mainWindow.window(); }
};

}  // namespace larkspan
