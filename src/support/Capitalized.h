#pragma once

#include <string>
#include <string_view>

namespace larkspan::support {

/// `text` with the first letter of each word in upper case and all others in lower case: "CRITICAL" gives "Critical"
/// and "in_progress" gives "In_Progress". UTF-8; Latin, Greek, Cyrillic and Armenian letters, others are not changed.
std::string capitalized(std::string_view text);

}  // namespace larkspan::support
