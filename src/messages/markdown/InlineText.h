#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace larkspan::incidents {

struct InlineStyles {
    bool isEmphasised = false;
    bool isStrong = false;
    bool isCode = false;
    bool isStruckThrough = false;

    bool operator==(const InlineStyles&) const = default;
};

/// A stretch of `InlineText::text` in one style; `link` is an index of `InlineText::destinations`.
struct InlineRun {
    std::size_t length = 0;
    InlineStyles styles = {};
    std::optional<std::size_t> link = {};

    bool operator==(const InlineRun&) const = default;
};

/// Text without its inline markup. The runs follow each other from its begin to its end; neighbours differ in style or
/// link, and none is empty.
struct InlineText {
    std::string text;
    std::vector<InlineRun> runs;
    /// Where the links lead, in their order and as the source has it: each may be anything.
    std::vector<std::string> destinations;

    bool operator==(const InlineText&) const = default;
};

/// Reads the inline markup of CommonMark, and "~" and "~~" for what is struck through. There are no blocks in `text`,
/// no link references and no HTML, which is text like any other; an image is its description. Line feeds and blanks
/// stay as they are. A text that cannot be read is shown with its markup.
InlineText inlineMarkdownText(std::string text);

}  // namespace larkspan::incidents
