#pragma once

#include <stdexcept>

#include "service/FaultPlan.h"
#include "json/JsonForward.h"

namespace larkspan::simulator {

/// Thrown for an order to the simulator that makes no sense; the message says why.
class BadOrder : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A fault in JSON: its name under "fault" ("status", "delay", "hang", "drip", "reset", "truncation",
/// "closed_before_first_byte", "not_http", "body", "garbage", "wrong_shape", "bad_element", "deep_nesting",
/// "huge_body", "redirect"), its parameters ("code", "milliseconds", "bytes", "after", "text", "content_type", "depth",
/// "packed", "location"), and the requests that it affects ("path", "method", "times"). Throws `BadOrder`.
FaultRule readFaultRule(const Json& json);

}  // namespace larkspan::simulator
