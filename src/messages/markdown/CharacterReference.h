#pragma once

#include <string>
#include <string_view>

namespace larkspan::incidents {

/// What "&amp;", "&#38;" or "&#x26;" stands for. A name that HTML does not know stands for itself.
std::string decodedCharacterReference(std::string_view reference);

}  // namespace larkspan::incidents
