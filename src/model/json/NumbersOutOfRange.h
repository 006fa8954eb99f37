#pragma once

#include <string>
#include <string_view>

namespace larkspan::model {

/// Replaces a number in a body that no double can hold, so that it fails only the field that it is in. A `null` would
/// not do: an optional field would be absent and a list empty, as if the service had said so. It is as short as the
/// shortest number that is beyond a double.
inline constexpr double outOfRange = -9e99;

/// `body` with each number that JSON allows and the parser refuses replaced by one that the parser accepts: an integer
/// beyond 64 bits by a double, a number beyond a double by `outOfRange`. Everything else is unchanged, also what is no
/// JSON number. The result has a capacity of `padding` more bytes.
std::string withNumbersInRange(std::string_view body, std::size_t padding);

}  // namespace larkspan::model
