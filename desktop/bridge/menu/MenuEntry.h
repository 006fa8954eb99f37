#pragma once

#include <string>

#include "platform/StatusItem.h"

namespace larkspan::bridge {

/// A row of the menu, told from the others by what it does: its texts may change while it is open.
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
