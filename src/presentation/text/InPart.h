#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::presentation {

/// So many lines are shown of what has no list of its own, which makes each of them whether it is in sight or not.
inline constexpr std::size_t mostLines = 100;

/// What stands below the lines that are shown of `count`: how many there are beyond; empty for none.
std::string moreText(std::size_t count);

/// In bytes, for a text under a title in a list, and for one that is read for itself: far more than anybody writes
/// there, and little enough to be laid out at once. The time for a text without a place to break grows with its square.
inline constexpr std::size_t mostOfARowsText = 2'000;
inline constexpr std::size_t mostOfAText = 20'000;

/// In bytes, for a message, which is read and laid out paragraph by paragraph.
inline constexpr std::size_t mostOfAMessage = 128 * 1024;

/// `text`, or its beginning and a sign that there is more.
std::string inPart(std::string_view text, std::size_t most);

}  // namespace larkspan::presentation
