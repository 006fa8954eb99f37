#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace larkspan::messages {

struct InlineStyles {
    bool isEmphasised = false;
    bool isStrong = false;
    bool isCode = false;
    bool isStruckThrough = false;

    bool operator==(const InlineStyles&) const = default;
};

/// A part of `InlineText::text` in one style; `link` is an index of `InlineText::destinations`.
struct InlineRun {
    std::size_t length = 0;
    InlineStyles styles = {};
    std::optional<std::size_t> link = {};

    bool operator==(const InlineRun&) const = default;
};

/// Text without its inline markup. The runs cover the text in order; neighbours differ in style or link, and none is
/// empty.
struct InlineText {
    std::string text;
    std::vector<InlineRun> runs;
    /// The links' destinations in their order, as in the source: each may be anything.
    std::vector<std::string> destinations;

    bool operator==(const InlineText&) const = default;
};

/// Reads the inline markup of CommonMark, with "~" and "~~" for struck-through text. Blocks, link references and HTML
/// are not interpreted; an image becomes its description. Line feeds and blanks are kept. A text that cannot be read is
/// returned with its markup.
InlineText inlineMarkdownText(std::string text);

}  // namespace larkspan::messages
