#pragma once

#include <string>
#include <string_view>

namespace larkspan::messages {

/// The characters of a reference such as "&amp;", "&#38;" or "&#x26;". A name that HTML does not define is returned as
/// it is.
std::string decodedCharacterReference(std::string_view reference);

}  // namespace larkspan::messages
