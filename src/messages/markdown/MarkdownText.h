#pragma once

#include <string>
#include <vector>

#include "messages/markdown/InlineText.h"
#include "messages/markdown/MarkdownLink.h"

namespace larkspan::incidents {

/// What one text item shows.
struct MarkdownText {
    /// For Text.StyledText; an href of "2" is `links[2]`.
    std::string styled;
    /// The same in plain words, for who cannot see it.
    std::string plain;
    std::vector<MarkdownLink> links;

    bool operator==(const MarkdownText&) const = default;

    /// `text` for one item after the other, none of which is longer than an item may be; at least one. Their plain
    /// texts are the whole when put together: the line end at which a piece is cut ends its plain text, but is not
    /// shown, since the next item begins on a line of its own.
    static std::vector<MarkdownText> piecesOf(InlineText text);
};

}  // namespace larkspan::incidents
