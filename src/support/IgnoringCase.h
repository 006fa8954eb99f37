#pragma once

#include <string_view>

namespace larkspan::support {

/// Whether the two are the same but for the case of their letters. `word` is one of the program's own, in plain Latin
/// letters: then this is true of just those texts that Unicode's lower case makes equal to it.
bool equalsIgnoringCase(std::string_view text, std::string_view word);

}  // namespace larkspan::support
