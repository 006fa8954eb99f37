#pragma once

#include <string_view>
#include <vector>

namespace larkspan::support {

/// The space, the tab and Unicode's other space separators, but no line end.
bool isBlank(char32_t character);

/// U+000A to U+000D, U+0085, U+2028 and U+2029.
bool isLineEnd(char32_t character);

/// `text` without the blanks at its two ends.
std::string_view withoutBlanksAround(std::string_view text);

/// The lines of `text`, empty ones included; a text without a line end is one line, and "\r\n" is one line end. The
/// views are into `text`.
std::vector<std::string_view> linesOf(std::string_view text);

}  // namespace larkspan::support
