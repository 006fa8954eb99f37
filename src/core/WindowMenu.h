#pragma once

#include <string>
#include <vector>

#include "platform/StatusItem.h"

namespace larkspan::core {

/// The rows of the panel's menu as the window shows them: in four parts, so that the pages can scroll while the others,
/// which have the separators, stay in view; with the entry for the about box above the last separator.
struct WindowMenu {
    struct Row {
        /// `plain` is a command, a remark in a fainter tone, or a separator.
        enum class Look { plain, status, heading, text };

        platform::MenuRow row{};
        Look look = Look::plain;
        /// Empty for none.
        std::string symbolName{};
        /// The word at the row's end; empty for none.
        std::string ending{};

        bool operator==(const Row&) const = default;
    };

    std::vector<Row> summary{};
    std::vector<Row> pages{};
    std::vector<Row> incidents{};
    std::vector<Row> commands{};

    /// `rows` are those of `menuRows`, `statusSymbol` is the symbol of the panel's item.
    static WindowMenu of(const std::vector<platform::MenuRow>& rows, const std::string& statusSymbol);
};

/// Not one of the panel's rows, so it has none of their actions.
platform::MenuRow aboutRow();

}  // namespace larkspan::core
