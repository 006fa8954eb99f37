#pragma once

#include <string_view>

namespace larkspan::support {

/// `text` without the white space and newlines at its two ends, Unicode's included; UTF-8.
std::string_view trimmed(std::string_view text);

}  // namespace larkspan::support
