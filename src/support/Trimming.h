#pragma once

#include <string>
#include <string_view>

namespace larkspan::support {

/// The space, the tab and Unicode's other space separators, but no line end.
bool isBlank(char32_t character);

/// U+000A to U+000D, U+0085, U+2028 and U+2029.
bool isLineEnd(char32_t character);

/// `text` with a blank for the line ends between two lines, and without those around it; UTF-8. Nearly as fast as
/// copying.
std::string inOneLine(std::string_view text);

/// `text` without the blanks at both ends; UTF-8.
std::string_view withoutBlanksAround(std::string_view text);

/// `text` without the blanks, line ends and zero-width spaces at both ends; UTF-8.
std::string_view trimmed(std::string_view text);

}  // namespace larkspan::support
