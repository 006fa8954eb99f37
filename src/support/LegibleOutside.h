#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::support {

/// More characters than a panel or a notice shows.
inline constexpr std::size_t longestOutside = 200;

enum class Lines { one, several };

/// A text of the service as it may leave the window, to a panel, a notice or a terminal, whatever bytes it has: without
/// control characters and those that turn the direction of what follows. Line breaks are kept as such with `several`,
/// and are blanks otherwise. After `longest` characters it is cut and ends in an ellipsis.
std::string legibleOutside(std::string_view text, Lines lines = Lines::one, std::size_t longest = longestOutside);

}  // namespace larkspan::support
