#pragma once

#include <string_view>

namespace larkspan::support {

/// Whether the two are equal ignoring the case of letters. `word` must be in ASCII letters: the result is then the same
/// as with Unicode's lower case.
bool equalsIgnoringCase(std::string_view text, std::string_view word);

}  // namespace larkspan::support
