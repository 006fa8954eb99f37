#pragma once

#include <string_view>

namespace larkspan::api {

/// Whether `key` can be sent as a header's value: visible ASCII only, so that it can neither end the header nor be
/// changed on the way.
bool canStandInHeader(std::string_view key);

}  // namespace larkspan::api
