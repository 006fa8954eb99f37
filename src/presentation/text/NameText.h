#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "presentation/text/InPart.h"

namespace larkspan::presentation {

/// The name or title of a record as every list, menu and detail shows it: one line, of several lines with a blank
/// between two; "Unnamed" for a name that begins with nothing visible, whose row could not be seen otherwise. Of a name
/// of more than `most` bytes only the beginning. An account may have twenty thousand of them.
std::string nameText(std::string_view name, std::size_t most = mostOfAText);

}  // namespace larkspan::presentation
