#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <vector>

#include "messages/markdown/MarkdownText.h"

namespace larkspan::incidents {

/// One row of a message on screen, small enough to be made when it scrolls into view. A long text goes on in the rows
/// below, which then have no gap.
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
    /// Of an item: its bullet or number, which only its first row shows; the others are indented by it.
    std::string label = {};
    /// Of all rows but a table's.
    MarkdownText text = {};
    /// Of a table's rows, from the left; where there are fewer than columns, the rest is empty.
    std::vector<MarkdownText> cells = {};
    /// Of a table's rows: which of `MarkdownRows::tables` it is of.
    std::size_t table = 0;
    bool continuesPrevious = false;
    /// In points, to the row above.
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

    /// For each column, the texts of those cells that may be its widest: it is as wide as one of them is drawn.
    std::vector<std::vector<Text>> widestTexts;

    bool operator==(const MarkdownColumns&) const = default;
};

struct MarkdownRows {
    std::vector<MarkdownRow> rows;
    std::vector<MarkdownColumns> tables;

    bool operator==(const MarkdownRows&) const = default;
};

}  // namespace larkspan::incidents
