#pragma once

#include <string_view>

namespace larkspan::presentation {

/// Whether `address` can be opened in a browser: http or https, ignoring the case of letters. Any other address from
/// the service, such as a file or a script, is shown but never opened.
bool isWebAddress(std::string_view address);

}  // namespace larkspan::presentation
