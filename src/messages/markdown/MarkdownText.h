#pragma once

#include <string>
#include <vector>

#include "messages/markdown/InlineText.h"
#include "messages/markdown/MarkdownLink.h"

namespace larkspan::messages {

/// The content of one text item.
struct MarkdownText {
    /// For Text.StyledText; an href of "2" is `links[2]`.
    std::string styled;
    /// The same as plain text, for assistive technologies.
    std::string plain;
    std::vector<MarkdownLink> links;

    bool operator==(const MarkdownText&) const = default;

    /// Splits `text` into at least one piece, none of which is longer than an item may be. Joined, the plain texts are
    /// the whole text: a line end at which the text is cut is the end of a piece's plain text, but is not shown, since
    /// the next item starts on a new line.
    static std::vector<MarkdownText> piecesOf(InlineText text);
};

}  // namespace larkspan::messages
