#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "messages/markdown/MarkdownBlock.h"

namespace larkspan::incidents {

struct TableLines {
    MarkdownTable table;
    /// The first line that is no longer of the table.
    std::size_t nextIndex;
};

/// The table that begins at `lines[index]`, if one does.
std::optional<TableLines> parseTableBlock(std::span<const std::string_view> lines, std::size_t index);

/// Whether `parseTableBlock` gives a table, which takes a look at two lines only.
bool beginsTable(std::span<const std::string_view> lines, std::size_t index);

/// The texts between the pipes of `line`, one at least.
std::vector<std::string> parseTableCells(std::string_view line);

/// Three or more of "-" and ":", with blanks wherever they like.
bool isTableSeparatorCell(std::string_view cell);

}  // namespace larkspan::incidents
