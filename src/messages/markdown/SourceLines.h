#pragma once

#include <string_view>
#include <vector>

namespace larkspan::messages {

/// The lines of `text`, empty ones included; a text without a line end is one line, and "\r\n" is one line end. The
/// views are into `text`.
std::vector<std::string_view> linesOf(std::string_view text);

}  // namespace larkspan::messages
