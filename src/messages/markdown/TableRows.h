#pragma once

#include "messages/markdown/MarkdownBlock.h"
#include "messages/markdown/MarkdownRow.h"

namespace larkspan::messages {

/// The space above a table's headers and below its last row, in points.
inline constexpr int tablePadding = 2;

/// Appends the rows that show `table`, `gap` points below the rows so far. Cells beyond the number of headers are not
/// shown.
void appendTable(MarkdownRows& content, const MarkdownTable& table, int gap);

}  // namespace larkspan::messages
