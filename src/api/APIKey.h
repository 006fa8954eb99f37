#pragma once

#include <string_view>

namespace larkspan::api {

/// Whether `key` can be sent as a header's value: visible ASCII only, so that it can neither break out of the
/// header nor arrive as something else.
bool canStandInHeader(std::string_view key);

}  // namespace larkspan::api
