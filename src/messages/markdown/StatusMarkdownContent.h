#pragma once

#include <string>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::messages {

/// A message of an incident or a maintenance, as it is shown.
///
///     source -> parseMarkdownBlocks -> inlineMarkdownText of each text -> MarkdownText::piecesOf -> rows
///
/// For any source, the rows are computed in linear time, contain no more than the source, and each has a bounded size:
/// each item of a list and each row of a table is a separate row, a long text has several rows, and a table too wide
/// for one row is continued by another table with the remaining columns.
class StatusMarkdownContent {
public:
    explicit StatusMarkdownContent(std::string source);

    const std::string& source() const { return source_; }

    /// Computed by each call.
    MarkdownRows rows() const;

private:
    std::string source_;
};

}  // namespace larkspan::messages
