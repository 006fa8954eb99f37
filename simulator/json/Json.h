#pragma once

// A value becomes text or a number only where the code says so.
#define JSON_USE_IMPLICIT_CONVERSIONS 0
#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

#include "json/JsonForward.h"

namespace larkspan::simulator {

// Here and not where they are used, since each file that reads or writes JSON itself takes seconds to compile.

/// Throws `Json::exception` if `text` is not JSON.
Json parsedJson(std::string_view text);

/// Bytes that are not UTF-8 become replacement characters.
std::string textOf(const Json& json);

}  // namespace larkspan::simulator
