#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::presentation {

/// The most lines that are shown without a virtual list, which would all be created even if not visible.
inline constexpr std::size_t mostLines = 100;

/// The text below the shown lines of `count`: how many more there are; empty for none.
std::string moreText(std::size_t count);

/// In bytes, for the title of a row: more than the widest window has room for in one line.
inline constexpr std::size_t mostOfARowsTitle = 600;

/// In bytes, for a text under a title in a list, and for a separate text: far more than anybody writes there, and short
/// enough to be laid out at once. Layout takes quadratic time for a text without a place to break.
inline constexpr std::size_t mostOfARowsText = 2'000;
inline constexpr std::size_t mostOfAText = 20'000;

/// In bytes, for a word in a pill, which is one line at the end of a row.
inline constexpr std::size_t mostOfAWord = 200;

/// In bytes, for a message, which is laid out paragraph by paragraph.
inline constexpr std::size_t mostOfAMessage = 128 * 1024;

/// `text`, or its beginning with a mark that there is more.
std::string inPart(std::string_view text, std::size_t most);

}  // namespace larkspan::presentation
