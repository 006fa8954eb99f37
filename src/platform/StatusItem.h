#pragma once

#include <functional>
#include <string>
#include <vector>

namespace larkspan::platform {

/// A row of the menu of the panel's item. Its texts are shown literally.
struct MenuRow {
    enum class Kind { information, command, separator };
    enum class Action { none, refreshNow, openDashboard, openStatusPage, openIncident, checkForUpdates, quitApp };
    enum class Dot { none, green, orange, red, blue, gray };

    Kind kind = Kind::separator;
    std::string title = {};
    Action action = Action::none;
    /// The id of the record that the action opens.
    std::string representedObject = {};
    /// The letter that triggers the row together with Ctrl while the menu is open; empty for none.
    std::string keyEquivalent = {};
    Dot dot = Dot::none;
    /// The row's tooltip, which also describes its dot to users who cannot see it.
    std::string toolTip = {};

    bool operator==(const MenuRow&) const = default;
};

/// The program's item in the desktop's panel. Main thread only; without a panel its calls do nothing.
class StatusItem {
public:
    struct Button {
        /// Drawn in the panel's text colour.
        std::string symbolName = {};
        std::string accessibilityDescription = {};
        std::string toolTip = {};

        bool operator==(const Button&) const = default;
    };

    virtual ~StatusItem() = default;

    /// Whether a panel shows the item now, so that the user can open its menu.
    virtual bool isShown() const = 0;
    /// Calls `changed` after each later change of `isShown`; replaces the previous callback.
    virtual void onShownChanged(std::function<void()> changed) = 0;

    /// Puts the item into the panel. `perform` is called with each command row that the user chooses.
    virtual void show(std::function<void(const MenuRow& row)> perform) = 0;
    virtual void setButton(const Button& button) = 0;

    /// Replaces the rows. An open menu changes in place.
    virtual void setMenu(const std::vector<MenuRow>& rows) = 0;
};

}  // namespace larkspan::platform
