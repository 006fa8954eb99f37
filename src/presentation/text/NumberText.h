#pragma once

#include <string>

namespace larkspan::presentation {

/// `value` with that many digits behind the point, rounded: "312", "99.98".
std::string fixedText(double value, int digits);

/// The same with its sign, which is a plus for zero too: "+4.2", "-0.3", "+0.0".
std::string signedText(double value, int digits);

}  // namespace larkspan::presentation
