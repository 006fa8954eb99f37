#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "adapters/Appearance.h"
#include "adapters/tray/StatusNotifierItem.h"
#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"
#include "peers/TrayHost.h"

namespace larkspan::adapters {

inline platform::MenuRow information(std::string title)
{
    return {.kind = platform::MenuRow::Kind::information, .title = std::move(title)};
}

inline platform::MenuRow separator()
{
    return {};
}

inline platform::MenuRow command(std::string title, platform::MenuRow::Action action, std::string keyEquivalent = {})
{
    return {.kind = platform::MenuRow::Kind::command,
        .title = std::move(title),
        .action = action,
        .keyEquivalent = std::move(keyEquivalent)};
}

inline platform::MenuRow page(std::string id, std::string name)
{
    return {.kind = platform::MenuRow::Kind::command,
        .title = std::move(name),
        .action = platform::MenuRow::Action::openStatusPage,
        .representedObject = std::move(id),
        .dot = platform::MenuRow::Dot::green,
        .toolTip = "Operational"};
}

/// The menu that the program builds for these pages.
inline std::vector<platform::MenuRow> menuOf(const std::vector<platform::MenuRow>& pages)
{
    using Action = platform::MenuRow::Action;
    std::vector<platform::MenuRow> rows{information("Operational"), information("Updated 5s ago"), separator()};
    rows.insert(rows.end(), pages.begin(), pages.end());
    rows.push_back(separator());
    rows.push_back(command("Refresh", Action::refreshNow, "r"));
    rows.push_back(command("Open Dashboard", Action::openDashboard, "d"));
    rows.push_back(separator());
    rows.push_back(command("Quit", Action::quitApp, "q"));
    return rows;
}

/// An item on a private bus, without a panel at first.
class TrayTest : public testing::Test {
protected:
    void show()
    {
        item.show([this](const platform::MenuRow& row) { performed.push_back(row); });
    }

    /// A panel that has the item and has received no signal of it yet.
    std::unique_ptr<peers::TrayHost> panel()
    {
        auto host = std::make_unique<peers::TrayHost>(bus);
        EXPECT_TRUE(host->seesItem());
        host->takeSignals();
        return host;
    }

    peers::PrivateBus bus;
    // The palette's colours, which a test can change.
    const SessionBus none{"unix:path=/no/such/bus"};
    const Appearance appearance{none};
    const SessionBus session{bus.address()};
    StatusNotifierItem item{session, appearance};
    std::vector<platform::MenuRow> performed;
};

}  // namespace larkspan::adapters
