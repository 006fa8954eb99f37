#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <vector>

#include "messages/markdown/MarkdownText.h"

namespace larkspan::messages {

/// One row of a message on screen, small enough to be created when it scrolls into view. A long text continues in the
/// next rows, which have no gap.
struct MarkdownRow {
    enum class Kind {
        title,  ///< a heading of level 1
        headline,  ///< any other heading
        paragraph,
        bulletItem,
        numberedItem,
        quote,
        tableHeader,
        tableDivider,
        tableRow,
    };

    Kind kind;
    /// For an item: its bullet or number, which only its first row shows; the others are indented by its width.
    std::string label = {};
    /// For all rows but a table's.
    MarkdownText text = {};
    /// For a table's rows, from the left; if there are fewer cells than columns, the rest is empty.
    std::vector<MarkdownText> cells = {};
    /// For a table's rows: the index of the table in `MarkdownRows::tables`.
    std::size_t table = 0;
    bool continuesPrevious = false;
    /// The distance to the row above, in points.
    int gap = 0;

    bool isOfTable() const { return kind == Kind::tableHeader || kind == Kind::tableDivider || kind == Kind::tableRow; }

    bool operator==(const MarkdownRow&) const = default;
};

/// What the rows of a table have in common.
struct MarkdownColumns {
    struct Text {
        std::string styled;
        bool isHeader = false;

        auto operator<=>(const Text&) const = default;
    };

    /// For each column, the texts of the cells that may be its widest: the column is as wide as the widest of them when
    /// drawn.
    std::vector<std::vector<Text>> widestTexts;

    bool operator==(const MarkdownColumns&) const = default;
};

struct MarkdownRows {
    std::vector<MarkdownRow> rows;
    std::vector<MarkdownColumns> tables;

    bool operator==(const MarkdownRows&) const = default;
};

}  // namespace larkspan::messages
