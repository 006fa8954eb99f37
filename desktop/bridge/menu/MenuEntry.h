#pragma once

#include <string>

#include "platform/StatusItem.h"

namespace larkspan::bridge {

/// A row of the menu, identified by its action, since its texts may change while the menu is open.
struct MenuEntry {
    std::string id{};
    std::string title{};
    platform::MenuRow row{};

    static MenuEntry of(const platform::MenuRow& row)
    {
        return {.id = std::to_string(static_cast<int>(row.kind)) + ' ' + std::to_string(static_cast<int>(row.action))
                + ' ' + row.representedObject,
            .title = row.title,
            .row = row};
    }

    bool operator==(const MenuEntry&) const = default;
};

}  // namespace larkspan::bridge
