#pragma once

#include <string>

#include "core/WindowMenu.h"

namespace larkspan::bridge {

/// A row of the menu, identified by its action, since its texts may change while the menu is open.
struct MenuEntry {
    std::string id{};
    std::string title{};
    core::WindowMenu::Row shown{};

    static MenuEntry of(const core::WindowMenu::Row& shown)
    {
        const auto& row = shown.row;
        return {.id = std::to_string(static_cast<int>(row.kind)) + ' ' + std::to_string(static_cast<int>(row.action))
                + ' ' + row.representedObject,
            .title = row.title,
            .shown = shown};
    }

    bool operator==(const MenuEntry&) const = default;
};

}  // namespace larkspan::bridge
