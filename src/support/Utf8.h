#pragma once

#include <string_view>

namespace larkspan::support {

/// Whether `bytes` is well-formed UTF-8: no overlong form, no surrogate, nothing past U+10FFFF.
bool isValidUtf8(std::string_view bytes);

}  // namespace larkspan::support
