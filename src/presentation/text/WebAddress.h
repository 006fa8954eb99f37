#pragma once

#include <string_view>

namespace larkspan::presentation {

/// Whether `address` is one that a browser opens: http or https, in any case of letters. Whatever else the service
/// sends as an address, such as a file or a script, is shown and never opened.
bool isWebAddress(std::string_view address);

}  // namespace larkspan::presentation
