#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "messages/markdown/MarkdownBlock.h"

namespace larkspan::messages {

struct TableLines {
    MarkdownTable table;
    /// The first line after the table.
    std::size_t nextIndex;
};

/// The table that starts at `lines[index]`, if any.
std::optional<TableLines> parseTableBlock(std::span<const std::string_view> lines, std::size_t index);

/// Whether a table starts at `lines[index]`; reads two lines only.
bool beginsTable(std::span<const std::string_view> lines, std::size_t index);

/// The texts between the pipes of `line`, at least one.
std::vector<std::string> parseTableCells(std::string_view line);

/// Three or more of "-" and ":", with blanks anywhere.
bool isTableSeparatorCell(std::string_view cell);

}  // namespace larkspan::messages
