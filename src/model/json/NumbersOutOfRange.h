#pragma once

#include <string>
#include <string_view>

namespace larkspan::model {

/// What stands in a body for a number that no double can hold, so that it fails the field that it is in and no other. A
/// `null` would not do: an optional field would be absent and a list empty, as if the service had said so. It is as
/// short as the shortest number that is beyond a double.
inline constexpr double outOfRange = -9e99;

/// `body` with each number that the parser does not take, though JSON has it, as one that it takes: an integer beyond
/// 64 bits as a double, a number beyond a double as `outOfRange`. All else, and what is no JSON number, stays as it is.
/// Has the room of `padding` bytes behind it.
std::string withNumbersInRange(std::string_view body, std::size_t padding);

}  // namespace larkspan::model
