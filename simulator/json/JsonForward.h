#pragma once

#include <nlohmann/json_fwd.hpp>

namespace larkspan::simulator {

/// A JSON value; an object keeps the order of its members. Whoever looks into one includes "json/Json.h".
using Json = nlohmann::ordered_json;

}  // namespace larkspan::simulator
