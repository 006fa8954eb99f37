#pragma once

#include <string>
#include <string_view>

namespace larkspan::support {

/// `text` with the first letter of each word large and all others small: "CRITICAL" gives "Critical" and "in_progress"
/// gives "In_Progress". UTF-8; Latin, Greek, Cyrillic and Armenian letters, others stay as they are.
std::string capitalized(std::string_view text);

}  // namespace larkspan::support
