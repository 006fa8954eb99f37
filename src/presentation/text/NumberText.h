#pragma once

#include <string>

namespace larkspan::presentation {

/// `value` rounded to this number of digits after the point: "312", "99.98".
std::string fixedText(double value, int digits);

/// The same with a sign, which is a plus for zero: "+4.2", "-0.3", "+0.0".
std::string signedText(double value, int digits);

}  // namespace larkspan::presentation
