#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "presentation/text/InPart.h"

namespace larkspan::presentation {

/// The name or title of a record as every list, menu and detail shows it: one line, of several lines with a blank
/// between two; "Unnamed" for a name that begins with nothing visible, whose row could not be seen otherwise. Of a name
/// of more than `most` bytes only the beginning.
std::string nameText(std::string_view name, std::size_t most = mostOfAText);

/// As `nameText`, but for a row of a list, of which there may be twenty thousand: no more than `mostOfARowsTitle`.
std::string rowTitle(std::string_view name);

}  // namespace larkspan::presentation
