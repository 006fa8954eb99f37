#pragma once

#include <string>
#include <string_view>

namespace larkspan::presentation {

/// The name or title of a record as every list, menu and detail shows it: one line, of several lines with a blank
/// between two; "Unnamed" for a name without a visible character, whose row could not be seen otherwise. Of an
/// extremely long name only the beginning.
std::string nameText(std::string_view name);

}  // namespace larkspan::presentation
