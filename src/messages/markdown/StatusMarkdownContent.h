#pragma once

#include <string>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::incidents {

/// A message of an incident or a maintenance, as it is shown.
///
///     source -> parseMarkdownBlocks -> inlineMarkdownText of each text -> MarkdownText::piecesOf -> rows
///
/// Whatever the source is, the rows are made in linear time, hold no more than the source gives, and each is of bounded
/// size: a list's item or a table's row has a row of its own, a long text has several, and a table too wide for one row
/// goes on below it as a table of its own, with the columns that are left.
class StatusMarkdownContent {
public:
    explicit StatusMarkdownContent(std::string source);

    const std::string& source() const { return source_; }

    /// Made anew for each call.
    MarkdownRows rows() const;

private:
    std::string source_;
};

}  // namespace larkspan::incidents
