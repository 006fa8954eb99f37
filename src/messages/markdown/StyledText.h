#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "messages/markdown/InlineText.h"

namespace larkspan::messages {

/// Writes text for a Qt Quick Text with Text.StyledText, which knows few tags and folds white space:
///
/// - every character that could be markup is escaped; the tags b, i, s, br, a and font come from the writer only;
/// - code is in a smaller font, the only style that StyledText offers for it within a line;
/// - runs of blanks and line ends are kept, a tab as wide as four blanks; control characters and invalid bytes are
/// shown as U+FFFD;
/// - a link's href is its number, so the markup contains no destination;
/// - a link's text is isolated from the direction of its surroundings, and cannot change its own: characters that
///   override, embed or isolate are removed;
/// - a zero-width space lets a long run of characters break, without which wrapping takes quadratic
/// time.
class StyledTextWriter {
public:
    /// `length` is the approximate length of the text that follows.
    explicit StyledTextWriter(std::size_t length);

    /// Writes `text` as part of the link with the number `link`, if given.
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
    /// Whether a plain blank here would be folded into the one before it.
    bool isFolding_ = true;
    std::size_t unbroken_ = 0;
};

}  // namespace larkspan::messages
