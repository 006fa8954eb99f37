#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace larkspan::messages {

struct MarkdownHeading {
    int level;
    std::string text;

    bool operator==(const MarkdownHeading&) const = default;
};

/// The unchanged lines, joined with line feeds.
struct MarkdownParagraph {
    std::string text;

    bool operator==(const MarkdownParagraph&) const = default;
};

struct MarkdownUnorderedList {
    std::vector<std::string> items;

    bool operator==(const MarkdownUnorderedList&) const = default;
};

struct MarkdownOrderedList {
    std::vector<std::string> items;

    bool operator==(const MarkdownOrderedList&) const = default;
};

/// The text of one line; consecutive lines are separate quotes.
struct MarkdownQuote {
    std::string text;

    bool operator==(const MarkdownQuote&) const = default;
};

/// A row may have fewer or more cells than there are headers.
struct MarkdownTable {
    std::vector<std::string> headers;
    std::vector<std::vector<std::string>> rows;

    bool operator==(const MarkdownTable&) const = default;
};

/// A block of the messages' small, line-oriented dialect. Its texts still hold their inline markup.
using MarkdownBlock = std::variant<MarkdownHeading, MarkdownParagraph, MarkdownUnorderedList, MarkdownOrderedList,
    MarkdownQuote, MarkdownTable>;

/// Every text can be parsed: a line that matches no rule is paragraph text.
std::vector<MarkdownBlock> parseMarkdownBlocks(std::string_view source);

}  // namespace larkspan::messages
