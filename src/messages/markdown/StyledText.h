#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "messages/markdown/InlineText.h"

namespace larkspan::incidents {

/// Writes text for a Qt Quick Text with Text.StyledText, which knows few tags and folds white space:
///
/// - every character that could be markup is escaped; the tags b, i, s, br, a and font are the writer's own;
/// - code is in a smaller font, the one thing that StyledText can do for it within a line;
/// - runs of blanks and line ends are kept, a tab as wide as four blanks; control characters and bad bytes show as
/// U+FFFD;
/// - a link's href is its number, so no destination ever stands in the markup;
/// - a link's text is isolated from the direction of what is around it, and cannot change its own: the characters that
///   override, embed or isolate are left out of it;
/// - a zero-width space gives a long run of characters a place to break, without which wrapping it takes quadratic
/// time.
class StyledTextWriter {
public:
    /// `length` is about how much is to come.
    explicit StyledTextWriter(std::size_t length);

    /// Writes `text`; it is of the link of that number.
    void add(std::string_view text, InlineStyles styles, std::optional<std::size_t> link);

    std::string take() &&;

private:
    void enterLink(std::optional<std::size_t> link);
    void addCharacters(std::string_view text);
    std::size_t addPlainBytes(std::string_view text);
    void addCharacter(char32_t character, std::string_view bytes);
    void addBlank();
    void addLineEnd();

    std::string text_;
    std::optional<std::size_t> link_;
    char32_t before_ = U'\n';
    /// Whether a plain blank here would be folded into one before it.
    bool isFolding_ = true;
    std::size_t unbroken_ = 0;
};

}  // namespace larkspan::incidents
